#pragma once

#include "Foundation/OwnerPtr.h"
#include "Foundation/UpdateCtrlStatusEvent.h"
#include "HostUi/HostUiExport.h"

#include <QTimer>

#include <memory>
#include <string>
#include <vector>

class QWidget;

namespace vesk
{

class CommandButtonDefinition;
class IControl;
class ILabelDefinition;
class ILineEditDefinition;

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

    /// Has every control take visibility and enabled state over.
    void RefreshControls() override;

    /// Destroys the control of the definition with that id once this is safe: when the outermost
    /// event loop runs and no action is under way. A control must not die inside its own signal.
    void Remove(const std::wstring& definitionId);

private:
    QWidget* Adopt(OwnerPtr<IControl> opControl);
    void RefreshCommandButton(IControl& control);
    void DestroyRemoved();

    std::vector<OwnerPtr<IControl>> m_controls;
    std::vector<OwnerPtr<IControl>> m_removed;
    QTimer m_destroyLater;
};

}
