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

/// What the action manager does, and its state: the running action and the commands that wait.
///
/// Whoever begins an action also ends it and runs what waits afterwards, in one call on the stack.
/// Where an action runs without an event loop, whoever asks for its end does so instead, as soon as
/// none of the action's operations is under way.
///
/// After an exception everything is as if the command had returned, except that its record gets no
/// mark and that what waits runs from the application's event loop.
class ActionRunner
{
public:
    /// Never destroyed: libraries that unload at the very end still ask for it.
    static ActionRunner& GetInstance();

    /// Runs a command, and completes its journal record; 0 when it has none.
    void Process(IUiView* pView, ICommand& command, const CommandParameters& parameters,
                 int record);
    void Send(const std::wstring& commandId, const CommandParameters& parameters, int record);

    /// Has the running action end as soon as it can; nothing happens when none runs.
    void RequestEnd();

    /// Does something with the running action, which lives at least until this returns. False when
    /// none runs or the one that runs is to end: it takes nothing more.
    bool Operate(const std::function<void(IAction&)>& operation);

    /// The same, followed by a step unless the action is to end.
    void OperateStep(const std::function<void(IAction&)>& operation);

    /// True while a command waits for the end of the running action, or to be taken up.
    bool IsCommandWaiting() const
    {
        return !m_waiting.empty() && (GetAction() != nullptr || !m_isUnderWay);
    }

    /// Runs the commands that an exception has left waiting.
    void TakeUp();

    /// Keeps an input for the command that is about to take its turn. False when none is.
    bool Hold(std::function<void()> input);

    IAction* GetAction() const { return m_running.opAction.Get(); }
    const std::wstring& GetCommandId() const { return m_running.commandId; }

    /// True while the running action has an event loop of its own.
    bool IsInEventLoop() const { return m_pRunningLoop != nullptr; }

    /// Chooses the event loop and returns the one chosen before.
    IActionEventLoop* SetEventLoop(IActionEventLoop* pEventLoop);

    void AddObserver(IActionObserver* pObserver);
    void RemoveObserver(IActionObserver* pObserver);

private:
    class Turn;

    struct Waiting
    {
        std::wstring commandId;
        CommandParameters parameters;
        std::optional<std::uint32_t> viewId; ///< None for the view that is current at its turn.
        int record = 0;                      ///< Its journal record; 0 when it has none.
    };

    /// Without an action everything is empty.
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

    /// True while an operation of the running action is on the stack.
    bool m_isOperating = false;

    /// True while a call that will run the waiting commands is on the stack.
    bool m_isUnderWay = false;

    /// True from the request to the end of the end: the action takes nothing more.
    bool m_isEndRequested = false;
};

}
