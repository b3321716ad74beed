#include "Ribbon/UnitPanel.h"

#include "Model/UiText.h"
#include "Ribbon/PlaceControl.h"

#include "Command/ActionManager.h"
#include "Control/RadioButtonGroupDefinition.h"
#include "Dimension/LengthUnit.h"
#include "Dimension/TemporaryDimensionMgr.h"

using namespace vesk;

namespace
{

struct Choice
{
    const wchar_t* id;
    const wchar_t* caption;
    const LengthUnit& (*unit)();
};

constexpr Choice Choices[] = {
    {L"Sketcher.Unit.mm", L"mm", &LengthUnit::Millimetre},
    {L"Sketcher.Unit.cm", L"cm", &LengthUnit::Centimetre},
    {L"Sketcher.Unit.m", L"m", &LengthUnit::Metre},
    {L"Sketcher.Unit.inch", L"inch", &LengthUnit::Inch},
};

OwnerPtr<RadioButtonGroupDefinition> MakeDefinition()
{
    auto opDefinition = MakeOwner<RadioButtonGroupDefinition>(L"Sketcher.Unit");
    opDefinition->SetCurrentRadioButtonId(Choices[0].id);
    for (const Choice& choice : Choices)
    {
        auto opButton = MakeOwner<RadioButtonDefinition>(choice.id, choice.caption);
        opButton->SetTooltip(L"长度以此单位显示和键入；图形不变"_tr);
        opDefinition->AddRadioButton(std::move(opButton));
    }
    return opDefinition;
}

}

UnitPanel::UnitPanel(IUiView& view, Qtitan::RibbonGroup& group, ControlHost& controls)
    : m_view(view), m_pDefinition(PlaceControl(MakeDefinition(), "单位"_tr, group, controls))
{
    LengthUnit::SetCurrent(Choices[0].unit());
    if (m_pDefinition != nullptr)
        m_pDefinition->GetControlDefinitionChangeEvent()->Add(this);
}

UnitPanel::~UnitPanel()
{
    LengthUnit::SetCurrent(Choices[0].unit());
    if (m_pDefinition != nullptr)
        m_pDefinition->GetControlDefinitionChangeEvent()->Delete(this);
}

void UnitPanel::On(IControlDefinitionChangeEventArgs*)
{
    const std::wstring chosen = m_pDefinition->GetCurrentRadioButtonId();
    for (const Choice& choice : Choices)
    {
        if (chosen != choice.id || &choice.unit() == &LengthUnit::GetCurrent())
            continue;
        // Text being typed was meant in the old unit.
        TemporaryDimensionMgr::GetInstance()->EndInput();
        LengthUnit::SetCurrent(choice.unit());
        ActionManager::RenewViewInput(&m_view);
        emit unitChanged();
    }
}

void UnitPanel::Choose(const std::wstring& symbol)
{
    for (const Choice& choice : Choices)
    {
        if (symbol == choice.caption && m_pDefinition != nullptr)
            m_pDefinition->SetCurrentRadioButtonId(choice.id);
    }
}
