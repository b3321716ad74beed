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

    /// Has Run return soon.
    virtual void Quit() = 0;
};

/// Hears when an action begins, makes a step or ends.
class VESK_HOST_API IActionObserver
{
public:
    virtual ~IActionObserver() = default;

    virtual void OnActionChanged() = 0;
};

/// Runs commands, one interactive action at a time.
///
/// An action runs inside ProcessCommand, in an event loop that is never more than one deep: a
/// command that must not run beside it ends it, waits, and runs when that loop has unwound. Without
/// an event loop (a replay) ProcessCommand only begins the action; the next one or Reset ends it.
///
/// At the begin, each step and the end of an action the view's text is set and a status refresh is
/// posted. A command that is disabled when its turn comes is refused. Either way the command's
/// journal record is completed: what RunCommand wrote or, before ProcessCommand and SendCommand,
/// whoever runs a command for a control.
class VESK_HOST_API ActionManager
{
public:
    /// Ends the running action; commands that wait for its end take their turn. Nothing happens
    /// when none runs. Called by an operation of the action itself, the end comes after that
    /// operation.
    static void Reset();

    /// Runs a command now. An interactive one that meets a running action ends it and waits for
    /// its turn; a plain one runs beside it. The last argument is not used.
    static void ProcessCommand(IUiView* pView, ICommand* pCommand,
                               const CommandParameters& parameters, ICommand* pPrevious);

    /// Records a command in the journal and runs it in the current view, as a click on its button
    /// does. Returns the number of the record; 0, and nothing is done, for an unknown id.
    static int RunCommand(const std::wstring& commandId, const CommandParameters& parameters);

    /// Runs the command with that id alone: a running action ends first. An unknown id does
    /// nothing.
    static void SendCommand(const std::wstring& commandId, const CommandParameters& parameters,
                            ICommand* pPrevious);

    /// Hands a typed value to the running action, with the text of the EditorTextScope if there is
    /// one. The action, and who called, may be gone afterwards.
    static void ProcessViewInput(IUiView* pView, const ActionViewInput& input);

    /// Tells the running action that a locked value is free again, and shows it.
    static void FreeValue(IUiView* pView, InputState field);

    /// Makes the provisional graphics anew and places the editor again; never opens or ends an
    /// input.
    static void RefreshViewInput(IUiView* pView);

    /// The same with dimensions that the action makes anew: what they depend on has changed, such
    /// as the unit shown or the size of a pixel.
    static void RenewViewInput(IUiView* pView);

    /// Hands the cursor's position, a click and an Escape of the view to the running action.
    static void ProcessMouseMove(IUiView* pView, const Vector3d& world);
    static void ProcessClick(IUiView* pView, const Vector3d& world);

    /// Drops the action's locked values or, when there are none, ends it.
    static void ProcessEscape(IUiView* pView);

    /// True while a command waits for the running action to end: what the user does in a view is
    /// meant for that command.
    static bool IsCommandWaiting();

    /// Keeps such an input, which is done once the command has begun, in the order of all that was
    /// kept, and dropped when it runs no action. False, and nothing is kept, when none waits.
    static bool HoldInput(std::function<void()> input);

    /// Sets the view text, remakes the provisional graphics and posts a refresh; an action whose
    /// state changed from outside (an undo) calls it.
    static void StepDone();

    /// The id of the running action's command; empty when none runs.
    static std::wstring GetRunningCommandId();

    /// Chooses the event loop of actions; null for none. Not owned.
    static void SetEventLoop(IActionEventLoop* pEventLoop);

    /// Adds an observer (not owned), told until it is removed.
    static void AddObserver(IActionObserver* pObserver);
    static void RemoveObserver(IActionObserver* pObserver);
};

}
