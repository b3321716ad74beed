#include "Command/ActionRunner.h"

#include "Command/ActionManager.h"
#include "Command/ICommand.h"
#include "Command/ICommandManager.h"
#include "Dimension/ITemporaryDimensionContext.h"
#include "Dimension/TemporaryDimensionMgr.h"
#include "Foundation/FirstException.h"
#include "Foundation/ScopedValue.h"
#include "Foundation/UpdateCtrlStatusEvent.h"
#include "Journal/JournalManager.h"
#include "View/IUiDocumentViewManager.h"
#include "View/IUiView.h"

#include <algorithm>
#include <utility>

namespace vesk
{

namespace
{

/// Makes the runner run the commands left waiting by an exception.
class TakeUpEvent final : public IApplicationEvent
{
public:
    void Emit() override { ActionRunner::GetInstance().TakeUp(); }
};

/// The view with that id, otherwise the current one; null if there is no view.
IUiView* FindView(const std::optional<std::uint32_t>& id)
{
    const IUiDocumentViewManager* pManager = IUiDocumentViewManager::Get();
    IUiView* pView = pManager != nullptr && id.has_value() ? pManager->GetUiViewById(*id) : nullptr;
    return pView != nullptr ? pView : UiDocumentViewManager::FindCurrentView();
}

std::optional<std::uint32_t> IdOf(const IUiView* pView)
{
    return pView != nullptr ? std::make_optional(pView->GetId()) : std::nullopt;
}

void ShowText(IUiView* pView, const std::wstring& text)
{
    if (pView == nullptr)
        return;
    pView->SetViewText(text);
    pView->Redraw();
}

void PostStatusRefresh()
{
    if (IApplication* pApplication = IApplication::Get())
        pApplication->PostEvent(MakeOwner<UpdateCtrlStatusEvent>());
}

/// Completes a command's journal record, if it has one.
void Complete(int record, bool isRefused)
{
    if (record != 0)
        JournalManager::GetInstance().Add(EndRecord{record, isRefused});
}

}

/// Exists while a call that runs the waiting commands is on the stack. Commands still waiting after
/// an exception are run from the event loop.
class ActionRunner::Turn
{
public:
    explicit Turn(ActionRunner& runner) : m_runner(runner) { m_runner.m_isUnderWay = true; }

    ~Turn()
    {
        m_runner.m_isUnderWay = false;
        if (m_runner.GetAction() != nullptr)
            return;
        if (m_runner.m_waiting.empty())
            m_runner.m_held.clear();
        else
            PostTakeUp();
    }

    Turn(const Turn&) = delete;
    Turn& operator=(const Turn&) = delete;

private:
    static void PostTakeUp()
    {
        FirstException outOfMemory;
        outOfMemory.Catch([] {
            if (IApplication* pApplication = IApplication::Get())
                pApplication->PostEvent(MakeOwner<TakeUpEvent>());
        });
    }

    ActionRunner& m_runner;
};

ActionRunner& ActionRunner::GetInstance()
{
    static ActionRunner* const s_pRunner = new ActionRunner;
    return *s_pRunner;
}

void ActionRunner::Process(IUiView* pView, ICommand& command, const CommandParameters& parameters,
                           int record)
{
    // Copies of the parameters: the caller may be gone while the command runs.
    if (command.IsInteractive())
        Take(pView, command, {command.GetCommandId(), parameters, IdOf(pView), record});
    else
        Run(pView, command, {{}, parameters, std::nullopt, record});
}

void ActionRunner::Send(const std::wstring& commandId, const CommandParameters& parameters,
                        int record)
{
    if (ICommand* pCommand = ICommandManager::Get()->GetCommand(commandId))
        Take(FindView(std::nullopt), *pCommand, {commandId, parameters, std::nullopt, record});
    else
        Complete(record, true);
}

void ActionRunner::RequestEnd()
{
    if (GetAction() == nullptr)
        return;
    m_isEndRequested = true;
    if (m_pRunningLoop != nullptr)
        m_pRunningLoop->Quit();
    else
        EndIfDue();
}

bool ActionRunner::Operate(const std::function<void(IAction&)>& operation)
{
    if (GetAction() == nullptr || m_isEndRequested)
        return false;
    FirstException exception;
    {
        const ScopedValue<bool> operating(m_isOperating, true);
        exception.Catch([&] { operation(*GetAction()); });
        exception.Catch([this] {
            if (GetAction()->IsFinished())
                RequestEnd();
        });
    }
    if (exception.IsKept() && IsEndDue())
        m_running.record = 0;
    exception.Catch([this] { EndIfDue(); });
    exception.Throw();
    return true;
}

void ActionRunner::OperateStep(const std::function<void(IAction&)>& operation)
{
    Operate([this, &operation](IAction& action) {
        operation(action);
        JournalManager::GetInstance().FinishStep();
        if (!m_isEndRequested && !action.IsFinished())
            ShowStep();
    });
}

bool ActionRunner::Hold(std::function<void()> input)
{
    if (!IsCommandWaiting())
        return false;
    m_held.push_back(std::move(input));
    return true;
}

IActionEventLoop* ActionRunner::SetEventLoop(IActionEventLoop* pEventLoop)
{
    return std::exchange(m_pEventLoop, pEventLoop);
}

void ActionRunner::AddObserver(IActionObserver* pObserver)
{
    const auto found = std::find(m_observers.begin(), m_observers.end(), pObserver);
    if (pObserver != nullptr && found == m_observers.end())
        m_observers.push_back(pObserver);
}

void ActionRunner::RemoveObserver(IActionObserver* pObserver)
{
    m_observers.erase(std::remove(m_observers.begin(), m_observers.end(), pObserver),
                      m_observers.end());
}

/// Runs a command on its own: immediately, or when its turn comes.
void ActionRunner::Take(IUiView* pView, ICommand& command, Waiting waiting)
{
    if (MustWait())
    {
        m_waiting.push_back(std::move(waiting));
        RequestEnd();
        return;
    }
    const Turn turn(*this);
    if (m_waiting.empty())
        Run(pView, command, waiting);
    else
        m_waiting.push_back(std::move(waiting));
    RunWaiting();
}

void ActionRunner::TakeUp()
{
    if (MustWait())
        return;
    const Turn turn(*this);
    RunWaiting();
}

void ActionRunner::Run(IUiView* pView, ICommand& command, const Waiting& waiting)
{
    if (!command.IsEnabled())
        Complete(waiting.record, true);
    else if (command.IsInteractive())
        RunInteractive(pView, command, waiting);
    else
        RunPlain(pView, command, waiting);
}

void ActionRunner::RunPlain(IUiView* pView, ICommand& command, const Waiting& waiting)
{
    // One command may run another.
    const ScopedValue<bool> failed(m_isFailed, false);
    command.Execute(pView, waiting.parameters);
    JournalManager::GetInstance().FinishStep();
    Complete(waiting.record, m_isFailed);
}

void ActionRunner::RunInteractive(IUiView* pView, ICommand& command, const Waiting& waiting)
{
    OwnerPtr<IAction> opAction = command.Execute(pView, waiting.parameters);
    if (opAction == nullptr)
    {
        JournalManager::GetInstance().FinishStep();
        Complete(waiting.record, false);
        return;
    }
    m_running = {std::move(opAction), waiting.commandId, IdOf(pView), waiting.record};

    FirstException exception;
    bool isOver = true;
    exception.Catch([&] { isOver = RunAction(pView); });
    if (!isOver)
        return;
    if (exception.IsKept())
        m_running.record = 0;
    exception.Catch([this] { End(); });
    exception.Throw();
}

/// Begins the action and runs it until it ends. False if it goes on without an event loop.
bool ActionRunner::RunAction(IUiView* pView)
{
    OperateStep([pView](IAction& action) { action.OnBegin(pView); });

    // A replay does not use the keyboard.
    IUiView* pShown = FindView(m_running.viewId);
    if (m_pEventLoop != nullptr && pShown != nullptr)
        pShown->Activate();
    DeliverHeld();
    if (!MayGoOn())
        return true;
    if (m_pEventLoop == nullptr)
        return false;
    const ScopedValue<IActionEventLoop*> runningLoop(m_pRunningLoop, m_pEventLoop);
    m_pRunningLoop->Run();
    return true;
}

/// Runs the waiting commands in order, until one of them goes on without an event loop.
void ActionRunner::RunWaiting()
{
    while (!m_waiting.empty() && GetAction() == nullptr)
    {
        const Waiting waiting = std::move(m_waiting.front());
        m_waiting.pop_front();
        // Looked up again: the command may have been removed while it waited.
        if (ICommand* pCommand = ICommandManager::Get()->GetCommand(waiting.commandId))
            Run(FindView(waiting.viewId), *pCommand, waiting);
        else
            Complete(waiting.record, true);
    }
    m_held.clear();
}

/// Delivers the input that was queued while the action was waiting for its turn.
void ActionRunner::DeliverHeld()
{
    if (!MayGoOn())
        return;
    for (const std::function<void()>& input : std::exchange(m_held, {}))
        input();
}

void ActionRunner::EndIfDue()
{
    if (!IsEndDue())
        return;
    const Turn turn(*this);
    End();
    RunWaiting();
}

/// Even after an exception the action is gone; its command then gets no completion mark.
void ActionRunner::End()
{
    FirstException exception;
    m_isEndRequested = true;
    exception.Catch([this] { GetAction()->OnEnd(); });
    Running ended = std::exchange(m_running, {});
    m_isEndRequested = false;

    exception.Catch([] { TemporaryDimensionMgr::GetInstance()->Drop(); });
    ended.opAction.Reset();
    if (!exception.IsKept())
        exception.Catch([&ended] { Complete(ended.record, false); });
    exception.Catch([&ended] { ShowText(FindView(ended.viewId), {}); });
    exception.Catch(&PostStatusRefresh);
    exception.Catch([this] { TellObservers(); });
    exception.Throw();
}

void ActionRunner::ShowStep()
{
    const std::wstring text = GetAction()->GetViewText();
    TemporaryDimensionMgr::GetInstance()->SetContext(GetAction()->CreateDimensionContext());
    ShowText(FindView(m_running.viewId), text);
    PostStatusRefresh();
    TellObservers();
}

void ActionRunner::TellObservers()
{
    FirstException exception;
    for (IActionObserver* pObserver : std::vector<IActionObserver*>(m_observers))
    {
        const auto found = std::find(m_observers.begin(), m_observers.end(), pObserver);
        if (found != m_observers.end())
            exception.Catch([pObserver] { pObserver->OnActionChanged(); });
    }
    exception.Throw();
}

}
