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
    /// Takes ownership of the definition. With a null definition the button is bare and does
    /// nothing. Visibility and enabled state are first applied by UpdateStatus.
    QtButton(OwnerPtr<ICommandButtonDefinition> pControlDefinition, QWidget* pParent);
    ~QtButton() override;

    IControlDefinition* GetControlDefinition() const override;

    /// Applies visibility, enabled state and the checked state of the button itself.
    void UpdateStatus() override;

    /// Applies style, icon, caption and checked state; tool tip, visibility and enabled state stay.
    void On(IControlDefinitionChangeEventArgs* pArgs) override;

protected:
    /// A tool button adopts the enabled state of its action whenever the action changes; this
    /// override keeps a disabled button disabled while On updates the action.
    void actionEvent(QActionEvent* pEvent) override;

    /// Leaves the action alone: that of Qt 6 checks it with the button.
    void checkStateSet() override;

private:
    enum class Part
    {
        Icon,
        Caption,
        CheckedState
    };
    struct Writing;

    void OnButtonClicked(bool checked);

    bool IsIconApplied(const QAction& action) const;
    bool IsEnabledStateAdopted(const QAction& action) const;
    bool AdoptOnly(Part part);
    void ApplyAction(QAction& action);

    OwnerPtr<ICommandButtonDefinition> m_pControlDefinition;

    static Writing s_writing;
};

}
