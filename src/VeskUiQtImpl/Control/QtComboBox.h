#pragma once

#include "Control/IComboBoxDefinition.h"
#include "Control/IControl.h"
#include "Control/IControlDefinitionChangeEvent.h"
#include "Foundation/OwnerPtr.h"
#include "VeskUiQtImpl/VeskUiQtImplExport.h"

#include <QComboBox>

namespace vesk
{

/// Shows a combo-box definition: the items follow it, the current index is synchronised both ways.
class VESK_UI_QT_IMPL_API QtComboBox : public QComboBox,
                                       public IControl,
                                       public IControlDefinitionChangeEventHandler
{
    Q_OBJECT

public:
    /// Takes ownership of the definition. With a null definition the box is bare and follows
    /// nothing. Visibility and enabled state are first applied by UpdateStatus; the tool tip is not
    /// shown.
    QtComboBox(OwnerPtr<IComboBoxDefinition> pControlDefinition, QWidget* pParent);
    ~QtComboBox() override;

    IControlDefinition* GetControlDefinition() const override;
    void UpdateStatus() override;

    /// Applies a change of the items, or current index, visibility and enabled state, each only if
    /// it differs. When Qt moves the current index along with the items, the definition is updated,
    /// but not as a change by the user.
    void On(IControlDefinitionChangeEventArgs* pArgs) override;

private:
    void OnCurrentIndexChanged(int index);

    void ApplyProperties();

    OwnerPtr<IComboBoxDefinition> m_pControlDefinition;

    /// False only while a change of a definition is applied to a combo box.
    static bool s_isIndexChangeByUser;
};

}
