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

/// Shows a check-box group definition: one check box per item, in the items' order.
///
/// The boxes are children of the parent widget, which owns them; they outlive the group. The host
/// places the boxes of the initial items; later ones are inserted next to them in the box layout of
/// the parent.
class VESK_UI_QT_IMPL_API QtCheckBoxGroup : public QButtonGroup,
                                            public IControl,
                                            public IControlDefinitionChangeEventHandler
{
    Q_OBJECT

public:
    /// Takes ownership of the definition. Without a definition or a parent the group is empty and
    /// follows nothing.
    QtCheckBoxGroup(OwnerPtr<ICheckBoxGroupDefinition> pControlDefinition, QWidget* pParent);
    ~QtCheckBoxGroup() override;

    /// The boxes in the order of their items; not owned by the caller.
    std::vector<QCheckBox*> GetAllControls() const;

    IControlDefinition* GetControlDefinition() const override;

    /// Applies visibility and enabled state of each box; the check state stays.
    void UpdateStatus() override;

    /// Applies a change of the items, or the states of all boxes, each only if it differs. Boxes of
    /// removed items are deleted when control returns to the event loop.
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
