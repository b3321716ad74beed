#pragma once

#include "Model/Snapper.h"

#include "Control/IControlDefinitionChangeEvent.h"

#include <QObject>

#include <array>

namespace Qtitan
{
class RibbonGroup;
}

namespace vesk
{
class CheckBoxGroupDefinition;
class ControlHost;
}

/// The object snaps, in the ribbon.
class SnapPanel final : public QObject, public vesk::IControlDefinitionChangeEventHandler
{
    Q_OBJECT

public:
    /// The arguments are not owned; the control host outlives the panel.
    SnapPanel(Snapper& snapper, Qtitan::RibbonGroup& group, vesk::ControlHost& controls);
    ~SnapPanel() override;

    void On(vesk::IControlDefinitionChangeEventArgs* pArgs) override;

    /// Switches exactly these snaps on.
    void Choose(const std::array<bool, Snapper::KindCount>& snaps);

private:
    Snapper& m_snapper;
    vesk::CheckBoxGroupDefinition* m_pDefinition;
};
