#pragma once

#include "Command/IAction.h"
#include "Foundation/OwnerPtr.h"
#include "Journal/CommandParameters.h"

#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace vesk
{

class IActionEventLoop;
class IActionObserver;
class ICommand;
class IUiView;

/// The implementation of the action manager and its state: the running action and the waiting
/// commands.
///
/// The call that begins an action also ends it and then runs the waiting commands. If an action
/// runs without an event loop, the call that requests its end does so instead, as soon as none of
/// the action's operations is on the stack.
///
/// After an exception the state is as if the command had returned, except that its record gets no
/// completion mark and the waiting commands run from the application's event loop.
class ActionRunner
{
public:
    /// Never destroyed: libraries that are unloaded at process exit still use it.
    static ActionRunner& GetInstance();

    /// Runs a command and completes its journal record (`record` is 0 if it has none).
    void Process(IUiView* pView, ICommand& command, const CommandParameters& parameters,
                 int record);
    void Send(const std::wstring& commandId, const CommandParameters& parameters, int record);

    /// Ends the running action as soon as possible; does nothing if none is running.
    void RequestEnd();

    /// Calls `operation` on the running action, which lives at least until this returns. False if
    /// none is running or its end has been requested: it then accepts nothing more.
    bool Operate(const std::function<void(IAction&)>& operation);

    /// The same, followed by a step unless the action is about to end.
    void OperateStep(const std::function<void(IAction&)>& operation);

    /// True while a command waits for the running action to end, or to be run from the event loop.
    bool IsCommandWaiting() const
    {
        return !m_waiting.empty() && (GetAction() != nullptr || !m_isUnderWay);
    }

    /// Runs the commands left waiting by an exception.
    void TakeUp();

    /// Queues an input for the command that runs next. False if no command is waiting.
    bool Hold(std::function<void()> input);

    IAction* GetAction() const { return m_running.opAction.Get(); }
    const std::wstring& GetCommandId() const { return m_running.commandId; }

    /// True while the running action is in its event loop.
    bool IsInEventLoop() const { return m_pRunningLoop != nullptr; }

    /// The plain command that is being executed could not be done.
    void Fail() { m_isFailed = true; }

    /// Sets the event loop and returns the previous one.
    IActionEventLoop* SetEventLoop(IActionEventLoop* pEventLoop);

    void AddObserver(IActionObserver* pObserver);
    void RemoveObserver(IActionObserver* pObserver);

private:
    class Turn;

    struct Waiting
    {
        std::wstring commandId;
        CommandParameters parameters;
        std::optional<std::uint32_t> viewId; ///< None for the view that is current when it runs.
        int record = 0;                      ///< Its journal record; 0 if it has none.
    };

    /// All members are empty without an action.
    struct Running
    {
        OwnerPtr<IAction> opAction;
        std::wstring commandId;
        std::optional<std::uint32_t> viewId;
        int record = 0;
    };

    bool MustWait() const { return m_isUnderWay || GetAction() != nullptr; }
    bool IsEndDue() const { return m_isEndRequested && !m_isOperating && !m_isUnderWay; }
    bool MayGoOn() const { return !m_isEndRequested && m_waiting.empty(); }
    void Take(IUiView* pView, ICommand& command, Waiting waiting);
    void Run(IUiView* pView, ICommand& command, const Waiting& waiting);
    void RunPlain(IUiView* pView, ICommand& command, const Waiting& waiting);
    void RunInteractive(IUiView* pView, ICommand& command, const Waiting& waiting);
    bool RunAction(IUiView* pView);
    void RunWaiting();
    void DeliverHeld();
    void EndIfDue();
    void End();
    void ShowStep();
    void TellObservers();

    Running m_running;
    std::deque<Waiting> m_waiting;
    std::vector<std::function<void()>> m_held;
    std::vector<IActionObserver*> m_observers;
    IActionEventLoop* m_pEventLoop = nullptr;
    IActionEventLoop* m_pRunningLoop = nullptr;

    /// True once the plain command that is being executed has failed.
    bool m_isFailed = false;

    /// True while an operation of the running action is on the stack.
    bool m_isOperating = false;

    /// True while a call that will run the waiting commands is on the stack.
    bool m_isUnderWay = false;

    /// True from the request until the action has ended: the action accepts nothing more.
    bool m_isEndRequested = false;
};

}
