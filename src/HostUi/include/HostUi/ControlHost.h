#pragma once

#include "Foundation/OwnerPtr.h"
#include "Foundation/UpdateCtrlStatusEvent.h"
#include "HostUi/HostUiExport.h"
#include "View/WindowId.h"

#include <QPointer>
#include <QTimer>

#include <string>
#include <vector>

class QWidget;

namespace vesk
{

class CommandButtonDefinition;
class ICheckBoxGroupDefinition;
class IComboBoxDefinition;
class ICommandButtonMenuDefinition;
class IControl;
class IControlDefinition;
class ILabelDefinition;
class ILineEditDefinition;
class IProgressBarDefinition;
class IRadioButtonGroupDefinition;
class VeskIControlFactory;

/// Hears of controls that go.
class VESK_HOST_UI_API IControlRemovalObserver
{
public:
    virtual ~IControlRemovalObserver() = default;

    /// The control of this definition is being removed. The definition still lives, but nobody may
    /// use it after the call.
    virtual void OnControlRemoved(const IControlDefinition& definition) = 0;
};

/// Owns the controls on screen and keeps them in step with commands and actions.
///
/// A definition is handed over invisible, so that no control opens as a window of its own; whoever
/// places the widget makes the definition visible afterwards, and RefreshControls shows it.
/// Destroyed before the widgets that hold the controls.
class VESK_HOST_UI_API ControlHost final : public IControlStatusRefresher
{
public:
    ControlHost();
    ~ControlHost() override;
    ControlHost(const ControlHost&) = delete;
    ControlHost& operator=(const ControlHost&) = delete;

    /// Makes the control of a definition, which it takes over, and returns its widget, which has no
    /// parent yet: the caller places it. Null when no control could be made.
    /// A command button is visible and enabled as its command is, and checked while it runs.
    QWidget* Create(OwnerPtr<CommandButtonDefinition> opDefinition);
    QWidget* Create(OwnerPtr<ILabelDefinition> opDefinition);
    QWidget* Create(OwnerPtr<ILineEditDefinition> opDefinition);
    QWidget* Create(OwnerPtr<IComboBoxDefinition> opDefinition);
    QWidget* Create(OwnerPtr<IProgressBarDefinition> opDefinition);

    /// The entries of the menu are visible and enabled as their commands are.
    QWidget* Create(OwnerPtr<ICommandButtonMenuDefinition> opDefinition);

    /// The widget is a panel with the buttons of the group side by side.
    QWidget* Create(OwnerPtr<ICheckBoxGroupDefinition> opDefinition);
    QWidget* Create(OwnerPtr<IRadioButtonGroupDefinition> opDefinition);

    /// Has every control take visibility and enabled state over.
    void RefreshControls() override;

    /// The definitions of all controls, in the order in which they were made. Not owned; none for a
    /// control without one.
    std::vector<IControlDefinition*> GetDefinitions() const;

    /// Destroys the control of the definition with that id once this is safe: when the outermost
    /// event loop runs and no action is under way. A control must not die inside its own signal.
    void Remove(const std::wstring& definitionId);

    /// Has an observer, which is not owned, hear of each control that is removed; null for none.
    void SetRemovalObserver(IControlRemovalObserver* pObserver) { m_pRemovalObserver = pObserver; }

private:
    /// A control and the widget that was placed for it: itself, or the panel of a group.
    struct Placed
    {
        OwnerPtr<IControl> opControl;
        QPointer<QWidget> pWidget;
    };

    template <class Definition>
    QWidget* CreateGroup(OwnerPtr<IControl> (VeskIControlFactory::*create)(OwnerPtr<Definition>,
                                                                           WindowId),
                         OwnerPtr<Definition> opDefinition);
    QWidget* Adopt(OwnerPtr<IControl> opControl);
    void RefreshCommandButton(IControl& control);
    void DestroyRemoved();

    std::vector<Placed> m_controls;
    std::vector<Placed> m_removed;
    QTimer m_destroyLater;
    IControlRemovalObserver* m_pRemovalObserver = nullptr;
};

}
