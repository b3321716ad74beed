#pragma once

#include "Control/ICheckBoxGroupDefinition.h"
#include "Control/IControl.h"
#include "Control/IControlDefinitionChangeEvent.h"
#include "Foundation/OwnerPtr.h"
#include "VeskUiQtImpl/VeskUiQtImplExport.h"

#include <QButtonGroup>

#include <vector>

class QAbstractButton;
class QCheckBox;
class QWidget;

namespace vesk
{

/// Shows a check-box group definition: a check box for each of its items, in the items' order.
///
/// The boxes are children of the parent widget, which owns them; they outlive the group. Boxes of
/// the first items are placed by the host, later ones come into the parent's box layout next to
/// them.
class VESK_UI_QT_IMPL_API QtCheckBoxGroup : public QButtonGroup,
                                            public IControl,
                                            public IControlDefinitionChangeEventHandler
{
    Q_OBJECT

public:
    /// Takes the definition over. Without it or without a parent the group is empty and follows
    /// nothing.
    QtCheckBoxGroup(OwnerPtr<ICheckBoxGroupDefinition> pControlDefinition, QWidget* pParent);
    ~QtCheckBoxGroup() override;

    /// The boxes in the order of their items. Not owned by the caller.
    std::vector<QCheckBox*> GetAllControls() const;

    IControlDefinition* GetControlDefinition() const override;

    /// Takes visibility and enabled state of each box over; whether it is checked stays.
    void UpdateStatus() override;

    /// Takes a change of the items over, or the states of all boxes, each only where it differs.
    /// Boxes of items that are gone are deleted when control returns to the event loop.
    void On(IControlDefinitionChangeEventArgs* pArgs) override;

private:
    QCheckBox* AddCheckBox(const ICheckBoxDefinition* pDefinition);
    QCheckBox* CreateControl(const ICheckBoxDefinition* pDefinition);
    void OnControlDefinitionChangeEventTypeAdd(IControlDefinitionChangeEventArgs* pArgs);
    void OnControlDefinitionChangeEventTypeInsert(IControlDefinitionChangeEventArgs* pArgs);
    void OnButtonClicked(QAbstractButton* pButton);

    void ApplyStates();

    OwnerPtr<ICheckBoxGroupDefinition> m_pControlDefinition;
    QWidget* m_pParent;
    std::vector<QCheckBox*> m_checkBoxes;
};

}
