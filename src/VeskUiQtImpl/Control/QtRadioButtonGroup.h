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

/// Shows a radio-button group definition: a radio button for each of its items, in the items'
/// order, of which the one that the definition names is checked.
///
/// The buttons are children of the parent widget, which owns them; they outlive the group. Buttons
/// of the first items are placed by the host, later ones come into the parent's box layout next to
/// them.
class VESK_UI_QT_IMPL_API QtRadioButtonGroup : public QButtonGroup,
                                               public IControl,
                                               public IControlDefinitionChangeEventHandler
{
    Q_OBJECT

public:
    /// Takes the definition over. Without it or without a parent the group is empty and follows
    /// nothing.
    QtRadioButtonGroup(OwnerPtr<IRadioButtonGroupDefinition> pControlDefinition, QWidget* pParent);
    ~QtRadioButtonGroup() override;

    /// The buttons in the order of their items. Not owned by the caller.
    std::vector<QRadioButton*> GetAllControls() const;

    IControlDefinition* GetControlDefinition() const override;

    /// Takes visibility and enabled state of each button over; whether it is checked stays.
    void UpdateStatus() override;

    /// Takes a change of the items over, or the states of all buttons, each only where it differs.
    /// Buttons of items that are gone are deleted when control returns to the event loop.
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
