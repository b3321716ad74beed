#include "Ribbon/SnapPanel.h"

#include "Model/UiText.h"
#include "Ribbon/PlaceControl.h"
#include "View/SnapMarker.h"

#include "Control/CheckBoxGroupDefinition.h"
#include "HostUi/QtText.h"

#include <cstddef>
#include <string>

using namespace vesk;

namespace
{

constexpr int Checked = 2;

/// In the order of the kinds.
constexpr const wchar_t* BoxIds[Snapper::KindCount] = {
    L"Sketcher.Snap.End", L"Sketcher.Snap.Middle", L"Sketcher.Snap.Centre",
    L"Sketcher.Snap.Intersection", L"Sketcher.Snap.Grid"};

OwnerPtr<CheckBoxGroupDefinition> MakeDefinition(const Snapper& snapper)
{
    auto opDefinition = MakeOwner<CheckBoxGroupDefinition>(L"Sketcher.Snap");
    for (int i = 0; i < Snapper::KindCount; ++i)
    {
        const auto kind = static_cast<Snapper::Kind>(i);
        auto opBox = MakeOwner<CheckBoxDefinition>(BoxIds[i], ToWide(SnapCaption(kind)));
        opBox->SetTooltip(ToWide("捕捉光标附近的%1"_tr.arg(SnapCaption(kind))));
        opBox->SetCheckState(snapper.IsOn(kind) ? Checked : 0);
        opDefinition->AddCheckBox(std::move(opBox));
    }
    return opDefinition;
}

}

SnapPanel::SnapPanel(Snapper& snapper, Qtitan::RibbonGroup& group, ControlHost& controls)
    : m_snapper(snapper),
      m_pDefinition(PlaceControl(MakeDefinition(snapper), "捕捉"_tr, group, controls))
{
    if (m_pDefinition != nullptr)
        m_pDefinition->GetControlDefinitionChangeEvent()->Add(this);
}

SnapPanel::~SnapPanel()
{
    if (m_pDefinition != nullptr)
        m_pDefinition->GetControlDefinitionChangeEvent()->Delete(this);
}

void SnapPanel::On(IControlDefinitionChangeEventArgs*)
{
    for (int i = 0; i < Snapper::KindCount; ++i)
    {
        const bool isOn = m_pDefinition->Find(BoxIds[i])->GetCheckState() != 0;
        m_snapper.SetOn(static_cast<Snapper::Kind>(i), isOn);
    }
}

void SnapPanel::Choose(const std::array<bool, Snapper::KindCount>& snaps)
{
    for (std::size_t i = 0; i < snaps.size() && m_pDefinition != nullptr; ++i)
        m_pDefinition->Find(BoxIds[i])->SetCheckState(snaps[i] ? Checked : 0);
}
