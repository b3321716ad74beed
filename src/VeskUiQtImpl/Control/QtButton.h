#pragma once

#include "Control/ICommandButtonDefinition.h"
#include "Control/IControl.h"
#include "Control/IControlDefinitionChangeEvent.h"
#include "Foundation/OwnerPtr.h"
#include "VeskUiQtImpl/VeskUiQtImplExport.h"

#include <QToolButton>

namespace vesk
{

/// Shows a command button definition; a click sends its command with the parameter "Clicked".
///
/// Text, icon and checked state live on the default action, which the button owns.
class VESK_UI_QT_IMPL_API QtButton : public QToolButton,
                                     public IControl,
                                     public IControlDefinitionChangeEventHandler
{
    Q_OBJECT

public:
    /// Takes the definition over. With an empty one the button is bare and does nothing.
    /// Visibility and enabled state come with the first UpdateStatus.
    QtButton(OwnerPtr<ICommandButtonDefinition> pControlDefinition, QWidget* pParent);
    ~QtButton() override;

    IControlDefinition* GetControlDefinition() const override;

    /// Takes visibility, enabled state and the button's own checked state over.
    void UpdateStatus() override;

    /// Takes style, icon, caption and checked state over; tool tip, visibility and enabled state
    /// stay.
    void On(IControlDefinitionChangeEventArgs* pArgs) override;

protected:
    /// A tool button takes the enabled state of its action over whenever the action changes; what
    /// On writes into the action leaves a disabled button disabled.
    void actionEvent(QActionEvent* pEvent) override;

private:
    void OnButtonClicked(bool checked);

    void ApplyAction();

    OwnerPtr<ICommandButtonDefinition> m_pControlDefinition;
};

}
