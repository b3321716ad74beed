#include "Ribbon/PenPanel.h"

#include "Model/UiText.h"
#include "Model/Workspace.h"
#include "Ribbon/PlaceControl.h"

#include "Control/ComboBoxDefinition.h"
#include "Journal/JournalRecord.h"

#include <algorithm>
#include <cstddef>
#include <utility>

using namespace vesk;

namespace
{

struct BoxText
{
    const wchar_t* id;
    const char* label;
};

/// In the order of the parts.
constexpr BoxText PartTexts[] = {{L"Sketcher.LineStyle", "线型"_source},
                                 {L"Sketcher.LineColour", "颜色"_source},
                                 {L"Sketcher.LineWidth", "线宽"_source}};

}

PenPanel::PenPanel(Workspace& workspace, Qtitan::RibbonGroup& penGroup,
                   Qtitan::RibbonGroup& layerGroup, ControlHost& controls)
    : m_workspace(workspace)
{
    for (std::size_t i = 0; i < PenParts().size(); ++i)
    {
        const PenPart& part = PenParts()[i];
        AddBox({part.name, part.member, ChoicesOf(part), nullptr}, PartTexts[i].id,
               Tr(PartTexts[i].label), penGroup, controls);
    }
    AddBox({L"layer", &Pen::layer, LayerChoices(), nullptr}, L"Sketcher.Layer",
           Tr("图层"_source, "of an entity"), layerGroup, controls);
    connect(&workspace.sketch, &Sketch::changed, this, &PenPanel::Show);
    connect(&workspace.selection, &Selection::changed, this, &PenPanel::Show);
    Show();
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
        Choose(box);
}

std::vector<PenPanel::Choice> PenPanel::ChoicesOf(const PenPart& part)
{
    std::vector<Choice> choices;
    for (std::size_t i = 0; i < part.valueNames.size(); ++i)
        choices.push_back({static_cast<int>(i), part.valueNames[i], part.getCaption(i)});
    return choices;
}

std::vector<PenPanel::Choice> PenPanel::LayerChoices() const
{
    std::vector<Choice> choices;
    for (const Layer& layer : m_workspace.sketch.GetLayers())
        choices.push_back({layer.id, std::to_wstring(layer.id), layer.name});
    return choices;
}

void PenPanel::AddBox(Box box, const wchar_t* id, const QString& label, Qtitan::RibbonGroup& group,
                      ControlHost& controls)
{
    auto opDefinition = MakeOwner<ComboBoxDefinition>(id);
    for (const Choice& choice : box.choices)
        opDefinition->AddItem(choice.caption);
    box.pDefinition = PlaceControl(std::move(opDefinition), label, group, controls);
    if (box.pDefinition == nullptr)
        return;
    box.pDefinition->GetControlDefinitionChangeEvent()->Add(this);
    m_boxes.push_back(std::move(box));
}

void PenPanel::Choose(const Box& box)
{
    const int index = box.pDefinition->GetCurrentIndex();
    if (index < 0)
        return;
    const Choice& choice = box.choices[static_cast<std::size_t>(index)];
    if (choice.value == GetShown(box.part))
        return;
    const std::wstring object = m_workspace.selection.IsEmpty() ? L"pen" : L"selection";
    m_workspace.properties.Set(PropertyRecord{object, box.property, choice.name});
}

void PenPanel::Show()
{
    for (Box& box : m_boxes)
    {
        if (box.part == &Pen::layer)
            ListLayers(box);
        const std::optional<int> shown = GetShown(box.part);
        const auto found =
            std::find_if(box.choices.begin(), box.choices.end(),
                         [&shown](const Choice& choice) { return choice.value == shown; });
        const auto index = static_cast<int>(found - box.choices.begin());
        box.pDefinition->SetCurrentIndex(found != box.choices.end() ? index : -1);
    }
}

/// Lists the layers anew if one was added, removed or renamed.
void PenPanel::ListLayers(Box& box) const
{
    std::vector<Choice> choices = LayerChoices();
    const auto isSame = [](const Choice& a, const Choice& b) {
        return a.value == b.value && a.caption == b.caption;
    };
    if (std::equal(choices.begin(), choices.end(), box.choices.begin(), box.choices.end(), isSame))
        return;
    box.choices = std::move(choices);
    box.pDefinition->ClearItems();
    for (const Choice& choice : box.choices)
        box.pDefinition->AddItem(choice.caption);
}

/// The value that all selected entities share, nothing if they differ; without a selection that of
/// the current pen.
std::optional<int> PenPanel::GetShown(int Pen::*part) const
{
    const std::vector<int>& ids = m_workspace.selection.GetIds();
    const Sketch& sketch = m_workspace.sketch;
    if (ids.empty())
        return sketch.GetCurrentPen().*part;
    const int first = sketch.Find(ids.front())->pen.*part;
    const bool isCommon = std::all_of(ids.begin(), ids.end(),
                                      [&](int id) { return sketch.Find(id)->pen.*part == first; });
    return isCommon ? std::make_optional(first) : std::nullopt;
}
