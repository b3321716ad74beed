#include "Model/PropertyEditor.h"

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
    if (!SetKnown(record))
        return false;
    JournalManager::GetInstance().FinishStep();
    return true;
}

bool PropertyEditor::SetKnown(const PropertyRecord& record)
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
    if (record.property == L"layer")
        return SetPen(record, &Pen::layer, FindLayer(record.value));
    const auto part =
        std::find_if(PenParts().begin(), PenParts().end(),
                     [&record](const PenPart& known) { return known.name == record.property; });
    return part != PenParts().end() && SetPen(record, part->member, part->Find(record.value));
}

bool PropertyEditor::SetPen(const PropertyRecord& record, int Pen::*part, std::optional<int> value)
{
    const bool isOfSelection = record.object == L"selection";
    if (!value.has_value() || (!isOfSelection && record.object != L"pen"))
        return false;
    JournalManager::GetInstance().Add(record);
    if (isOfSelection)
        m_sketch.SetPen(m_selection.GetIds(), part, *value);
    else
        m_sketch.SetCurrentPen(part, *value);
    return true;
}

/// The id that a text stands for; nothing if there is no such layer.
std::optional<int> PropertyEditor::FindLayer(const std::wstring& idText) const
{
    for (const Layer& layer : m_sketch.GetLayers())
    {
        if (std::to_wstring(layer.id) == idText)
            return layer.id;
    }
    return std::nullopt;
}
