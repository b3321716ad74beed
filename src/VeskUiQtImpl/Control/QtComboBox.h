#pragma once

#include "Control/IComboBoxDefinition.h"
#include "Control/IControl.h"
#include "Control/IControlDefinitionChangeEvent.h"
#include "Foundation/OwnerPtr.h"
#include "VeskUiQtImpl/VeskUiQtImplExport.h"

#include <QComboBox>

namespace vesk
{

/// Shows a combo-box definition: the items follow it, the current index goes both ways.
class VESK_UI_QT_IMPL_API QtComboBox : public QComboBox,
                                       public IControl,
                                       public IControlDefinitionChangeEventHandler
{
    Q_OBJECT

public:
    /// Takes the definition over. With an empty one the box is bare and follows nothing.
    /// Visibility and enabled state come with the first UpdateStatus; the tool tip is not shown.
    QtComboBox(OwnerPtr<IComboBoxDefinition> pControlDefinition, QWidget* pParent);
    ~QtComboBox() override;

    IControlDefinition* GetControlDefinition() const override;
    void UpdateStatus() override;

    /// Takes a change of the items over, or current index, visibility and enabled state, each only
    /// where it differs. Where Qt moves the current index with the items, the definition is told,
    /// but not as of a change by the user.
    void On(IControlDefinitionChangeEventArgs* pArgs) override;

private:
    void OnCurrentIndexChanged(int index);

    void ApplyProperties();

    OwnerPtr<IComboBoxDefinition> m_pControlDefinition;

    /// False exactly while a change of a definition is applied to a combo box.
    static bool s_isIndexChangeByUser;
};

}
