#include "Model/PropertyEditor.h"

#include "Model/Pen.h"
#include "Model/Selection.h"
#include "Model/Sketch.h"

#include "Journal/JournalManager.h"

#include <algorithm>
#include <optional>

using namespace vesk;

PropertyEditor::PropertyEditor(Sketch& sketch, const Selection& selection)
    : m_sketch(sketch), m_selection(selection)
{}

bool PropertyEditor::Set(const PropertyRecord& record)
{
    if (record.object != L"drawing")
        return SetPenPart(record);
    if (record.property != L"name")
        return false;
    JournalManager::GetInstance().Add(record);
    m_sketch.SetName(record.value);
    return true;
}

bool PropertyEditor::SetPenPart(const PropertyRecord& record)
{
    const bool isOfSelection = record.object == L"selection";
    if (!isOfSelection && record.object != L"pen")
        return false;
    const auto part =
        std::find_if(PenParts().begin(), PenParts().end(),
                     [&record](const PenPart& known) { return known.name == record.property; });
    if (part == PenParts().end())
        return false;
    const std::optional<int> value = part->Find(record.value);
    if (!value.has_value())
        return false;
    JournalManager::GetInstance().Add(record);
    if (isOfSelection)
        m_sketch.SetPen(m_selection.GetIds(), part->member, *value);
    else
        m_sketch.SetCurrentPen(part->member, *value);
    return true;
}
