#pragma once

#include "Control/IControl.h"
#include "Control/IControlDefinitionChangeEvent.h"
#include "Control/IRadioButtonGroupDefinition.h"
#include "Foundation/OwnerPtr.h"
#include "VeskUiQtImpl/VeskUiQtImplExport.h"

#include <QButtonGroup>

#include <vector>

class QAbstractButton;
class QRadioButton;
class QWidget;

namespace vesk
{

/// Shows a radio-button group definition: one radio button per item, in the items' order; the one
/// the definition names is checked.
///
/// The buttons are children of the parent widget, which owns them; they outlive the group. The host
/// places the buttons of the initial items; later ones are inserted next to them in the box layout
/// of the parent.
class VESK_UI_QT_IMPL_API QtRadioButtonGroup : public QButtonGroup,
                                               public IControl,
                                               public IControlDefinitionChangeEventHandler
{
    Q_OBJECT

public:
    /// Takes ownership of the definition. Without a definition or a parent the group is empty and
    /// follows nothing.
    QtRadioButtonGroup(OwnerPtr<IRadioButtonGroupDefinition> pControlDefinition, QWidget* pParent);
    ~QtRadioButtonGroup() override;

    /// The buttons in the order of their items; not owned by the caller.
    std::vector<QRadioButton*> GetAllControls() const;

    IControlDefinition* GetControlDefinition() const override;

    /// Applies visibility and enabled state of each button; the checked state stays.
    void UpdateStatus() override;

    /// Applies a change of the items, or the states of all buttons, each only if it differs.
    /// Buttons of removed items are deleted when control returns to the event loop.
    void On(IControlDefinitionChangeEventArgs* pArgs) override;

private:
    QRadioButton* AddRadioButton(const IRadioButtonDefinition* pDefinition);
    QRadioButton* CreateControl(const IRadioButtonDefinition* pDefinition);
    void OnControlDefinitionChangeEventTypeAdd(IControlDefinitionChangeEventArgs* pArgs);
    void OnControlDefinitionChangeEventTypeInsert(IControlDefinitionChangeEventArgs* pArgs);
    void OnButtonClicked(QAbstractButton* pButton);

    void ApplyStates();

    OwnerPtr<IRadioButtonGroupDefinition> m_pControlDefinition;
    QWidget* m_pParent;
    std::vector<QRadioButton*> m_radioButtons;
};

}
