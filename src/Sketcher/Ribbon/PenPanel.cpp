#include "Ribbon/PenPanel.h"

#include "Model/Workspace.h"
#include "Ribbon/PlaceControl.h"

#include "Control/ComboBoxDefinition.h"
#include "Journal/JournalRecord.h"

#include <algorithm>
#include <cstddef>

using namespace vesk;

namespace
{

struct BoxText
{
    const wchar_t* id;
    const char* label;
};

/// In the order of the parts.
constexpr BoxText BoxTexts[] = {{L"Sketcher.LineStyle", "线型"},
                                {L"Sketcher.LineColour", "颜色"},
                                {L"Sketcher.LineWidth", "线宽"}};

}

PenPanel::PenPanel(Workspace& workspace, Qtitan::RibbonGroup& group, ControlHost& controls)
    : m_workspace(workspace)
{
    for (std::size_t i = 0; i < PenParts().size(); ++i)
    {
        const PenPart& part = PenParts()[i];
        auto opDefinition = MakeOwner<ComboBoxDefinition>(BoxTexts[i].id);
        for (const std::wstring& caption : part.valueCaptions)
            opDefinition->AddItem(caption);
        auto* pDefinition = PlaceControl(std::move(opDefinition),
                                         QString::fromUtf8(BoxTexts[i].label), group, controls);
        if (pDefinition == nullptr)
            continue;
        pDefinition->GetControlDefinitionChangeEvent()->Add(this);
        m_boxes.push_back({part, pDefinition});
    }
    connect(&workspace.sketch, &Sketch::changed, this, &PenPanel::Show);
    connect(&workspace.selection, &Selection::changed, this, &PenPanel::Show);
}

PenPanel::~PenPanel()
{
    for (const Box& box : m_boxes)
        box.pDefinition->GetControlDefinitionChangeEvent()->Delete(this);
}

void PenPanel::On(IControlDefinitionChangeEventArgs* pArgs)
{
    if (!pArgs->IsChangeByUser())
        return;
    for (const Box& box : m_boxes)
    {
        const int chosen = box.pDefinition->GetCurrentIndex();
        if (chosen < 0 || chosen == GetShown(box.part))
            continue;
        const std::wstring object = m_workspace.selection.IsEmpty() ? L"pen" : L"selection";
        const std::wstring& value = box.part.valueNames[static_cast<std::size_t>(chosen)];
        m_workspace.properties.Set(PropertyRecord{object, box.part.name, value});
    }
}

void PenPanel::Show()
{
    for (const Box& box : m_boxes)
        box.pDefinition->SetCurrentIndex(GetShown(box.part));
}

/// The value that all selected entities share, -1 if they differ; without a selection that of the
/// current pen.
int PenPanel::GetShown(const PenPart& part) const
{
    const std::vector<int>& ids = m_workspace.selection.GetIds();
    const Sketch& sketch = m_workspace.sketch;
    if (ids.empty())
        return sketch.GetCurrentPen().*part.member;
    const int first = sketch.Find(ids.front())->pen.*part.member;
    const bool isCommon = std::all_of(
        ids.begin(), ids.end(), [&](int id) { return sketch.Find(id)->pen.*part.member == first; });
    return isCommon ? first : -1;
}
