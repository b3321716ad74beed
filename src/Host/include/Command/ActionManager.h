#pragma once

#include "Dimension/InputState.h"
#include "Foundation/HostExport.h"
#include "Geometry/Vector3d.h"

#include <functional>
#include <string>

namespace vesk
{

class CommandParameters;
class ICommand;
class IUiView;
struct ActionViewInput;

/// Runs an event loop while an action is under way.
class VESK_HOST_API IActionEventLoop
{
public:
    virtual ~IActionEventLoop() = default;

    /// Handles events until Quit is called or the application ends.
    virtual void Run() = 0;

    /// Makes Run return soon.
    virtual void Quit() = 0;
};

/// Notified when an action begins, completes a step or ends.
class VESK_HOST_API IActionObserver
{
public:
    virtual ~IActionObserver() = default;

    /// Called on the GUI thread. May add and remove observers.
    virtual void OnActionChanged() = 0;
};

/// Runs commands, one interactive action at a time.
///
/// An action runs inside ProcessCommand, in an event loop that never nests: a command that must not
/// run alongside the action ends it, waits, and runs once that loop has unwound. Without an event
/// loop (in a replay) ProcessCommand only begins the action; the next action or Reset ends it.
///
/// When an action begins, completes a step or ends, the view text is set and a status refresh is
/// posted. A command that is disabled when its turn comes is refused. In either case the command's
/// journal record is completed: the record written by RunCommand or, before ProcessCommand and
/// SendCommand, by whoever runs a command for a control.
class VESK_HOST_API ActionManager
{
public:
    /// Ends the running action; commands waiting for that run next. Does nothing if none is
    /// running. If one of the action's own operations calls it, the action ends after that
    /// operation.
    static void Reset();

    /// Runs a command now. If an action is running, an interactive command ends it and waits for
    /// its turn; a plain one runs alongside it. The last argument is unused.
    static void ProcessCommand(IUiView* pView, ICommand* pCommand,
                               const CommandParameters& parameters, ICommand* pPrevious);

    /// Records a command in the journal and runs it in the current view, as a click on its button
    /// does. Returns the number of the record; for an unknown id does nothing and returns 0.
    static int RunCommand(const std::wstring& commandId, const CommandParameters& parameters);

    /// Runs the command with that id on its own: a running action ends first. Does nothing for an
    /// unknown id.
    static void SendCommand(const std::wstring& commandId, const CommandParameters& parameters,
                            ICommand* pPrevious);

    /// Hands a typed value to the running action, with the text of the EditorTextScope if there is
    /// one. The action and the caller may be gone afterwards.
    static void ProcessViewInput(IUiView* pView, const ActionViewInput& input);

    /// Tells the running action that a locked value has been freed, and updates the dimensions.
    static void FreeValue(IUiView* pView, InputState field);

    /// Regenerates the provisional graphics and repositions the editor; never opens or ends an
    /// input.
    static void RefreshViewInput(IUiView* pView);

    /// Like RefreshViewInput, but with a new context from the action: for when something that the
    /// dimensions depend on has changed, such as the display unit or the size of a pixel.
    static void RenewViewInput(IUiView* pView);

    /// Pass the cursor position, a click or an Escape in the view to the running action.
    static void ProcessMouseMove(IUiView* pView, const Vector3d& world);

    /// The same for a click.
    static void ProcessClick(IUiView* pView, const Vector3d& world);

    /// Passes a point given by its coordinates to the running action. Returns false if it has no
    /// use for it. The action and the caller may be gone afterwards.
    static bool ProcessPoint(IUiView* pView, const Vector3d& world);

    /// Drops the action's locked values or, if there are none, ends it.
    static void ProcessEscape(IUiView* pView);

    /// True while a command waits for the running action to end: user input in a view is then meant
    /// for that command.
    static bool IsCommandWaiting();

    /// Queues such input until that command has begun its action; it is then delivered in the order
    /// it was queued, or dropped if the command runs no action. Returns false and queues nothing if
    /// no command is waiting.
    static bool HoldInput(std::function<void()> input);

    /// Sets the view text, regenerates the provisional graphics and posts a refresh; called by an
    /// action whose state was changed from outside (by an undo).
    static void StepDone();

    /// Call while a plain command is executed that has changed nothing because it could not be
    /// done: its record is completed as refused, and a replay leaves it out. Does nothing at any
    /// other time.
    static void FailCommand();

    /// The id of the running action's command; empty if none is running.
    static std::wstring GetRunningCommandId();

    /// Sets the event loop for actions; null for none. Not owned.
    static void SetEventLoop(IActionEventLoop* pEventLoop);

    /// Adds an observer (not owned), notified until it is removed.
    static void AddObserver(IActionObserver* pObserver);

    /// Removes an observer; an unknown one is ignored.
    static void RemoveObserver(IActionObserver* pObserver);
};

}
