#pragma once

#include "Control/IControlDefinitionChangeEvent.h"

#include <QObject>

#include <string>

namespace Qtitan
{
class RibbonGroup;
}

namespace vesk
{
class ControlHost;
class IUiView;
class RadioButtonGroupDefinition;
}

/// The unit in which lengths are shown and typed, in the ribbon.
class UnitPanel final : public QObject, public vesk::IControlDefinitionChangeEventHandler
{
    Q_OBJECT

public:
    /// Starts with millimetres. The arguments are not owned; the control host and the view, whose
    /// dimensions follow the unit, outlive the panel.
    UnitPanel(vesk::IUiView& view, Qtitan::RibbonGroup& group, vesk::ControlHost& controls);
    ~UnitPanel() override;

    void On(vesk::IControlDefinitionChangeEventArgs* pArgs) override;

    /// Chooses the unit with that symbol; does nothing if there is none.
    void Choose(const std::wstring& symbol);

signals:
    /// Lengths are shown in another unit from now on.
    void unitChanged();

private:
    vesk::IUiView& m_view;
    vesk::RadioButtonGroupDefinition* m_pDefinition;
};
