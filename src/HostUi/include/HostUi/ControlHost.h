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

/// Is notified when a control is removed.
class VESK_HOST_UI_API IControlRemovalObserver
{
public:
    virtual ~IControlRemovalObserver() = default;

    /// The control of this definition is being removed. The definition is still alive, but must not
    /// be used after the call.
    virtual void OnControlRemoved(const IControlDefinition& definition) = 0;
};

/// Owns the controls on screen and keeps them in sync with commands and actions.
///
/// Pass in definitions that are invisible, or the control opens as a window of its own. Make the
/// definition visible once the widget has a parent; RefreshControls then shows it. Destroyed before
/// the widgets that hold the controls.
class VESK_HOST_UI_API ControlHost final : public IControlStatusRefresher
{
public:
    ControlHost();
    ~ControlHost() override;
    ControlHost(const ControlHost&) = delete;
    ControlHost& operator=(const ControlHost&) = delete;

    /// Creates the control of a definition, whose ownership it takes, and returns its widget. The
    /// widget has no parent yet; the caller gives it one. Null if no control could be created. A
    /// command button is visible and enabled as its command is, and checked while the command runs.
    QWidget* Create(OwnerPtr<CommandButtonDefinition> opDefinition);

    /// The widget is a QLabel.
    QWidget* Create(OwnerPtr<ILabelDefinition> opDefinition);

    /// The widget is a QLineEdit; its definition follows what the user types.
    QWidget* Create(OwnerPtr<ILineEditDefinition> opDefinition);

    /// The widget is a QComboBox.
    QWidget* Create(OwnerPtr<IComboBoxDefinition> opDefinition);

    /// The widget is a QProgressBar.
    QWidget* Create(OwnerPtr<IProgressBarDefinition> opDefinition);

    /// The entries of the menu are visible and enabled as their commands are.
    QWidget* Create(OwnerPtr<ICommandButtonMenuDefinition> opDefinition);

    /// The widget is a panel with the buttons of the group side by side.
    QWidget* Create(OwnerPtr<ICheckBoxGroupDefinition> opDefinition);

    /// The same for radio buttons.
    QWidget* Create(OwnerPtr<IRadioButtonGroupDefinition> opDefinition);

    /// Adds a control of the program's own kind, whose ownership it takes, and returns its widget;
    /// the control must be a QWidget. It is refreshed, found and removed like all others. Null if
    /// it is none: it is destroyed then.
    QWidget* Add(OwnerPtr<IControl> opControl);

    /// Makes every control adopt the visibility and enabled state of its definition.
    void RefreshControls() override;

    /// The definitions of all controls, in order of creation. Not owned; a control without a
    /// definition is left out.
    std::vector<IControlDefinition*> GetDefinitions() const;

    /// Destroys the control of the definition with that id as soon as it is safe: in the outermost
    /// event loop, with no action running. A control must not be destroyed inside its own signal.
    void Remove(const std::wstring& definitionId);

    /// True in the outermost event loop while no action runs: then controls can be destroyed.
    static bool CanRemoveAll();

    /// Destroys all controls at once, so that others can be built in their place. Only while
    /// CanRemoveAll().
    void RemoveAll();

    /// Sets the observer of removed controls; not owned, null for none.
    void SetRemovalObserver(IControlRemovalObserver* pObserver) { m_pRemovalObserver = pObserver; }

private:
    /// A control and its widget: the control itself, or the panel of a group.
    struct Placed
    {
        OwnerPtr<IControl> opControl;
        QPointer<QWidget> pWidget;
    };

    template <class Definition>
    QWidget* CreateGroup(OwnerPtr<IControl> (VeskIControlFactory::*create)(OwnerPtr<Definition>,
                                                                           WindowId),
                         OwnerPtr<Definition> opDefinition);
    void RefreshCommandButton(IControl& control);
    void DestroyRemoved();

    std::vector<Placed> m_controls;
    std::vector<Placed> m_removed;
    QTimer m_destroyLater;
    IControlRemovalObserver* m_pRemovalObserver = nullptr;
};

}
