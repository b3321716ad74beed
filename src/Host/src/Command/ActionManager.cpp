#include "Command/ActionManager.h"

#include "Command/ActionRunner.h"
#include "Command/IActionManager.h"
#include "Command/ICommand.h"
#include "Command/ICommandManager.h"
#include "Command/TypedValue.h"
#include "Dimension/ActionViewInput.h"
#include "Dimension/ITemporaryDimensionContext.h"
#include "Dimension/InputField.h"
#include "Dimension/LengthUnit.h"
#include "Dimension/TemporaryDimensionMgr.h"
#include "Journal/JournalManager.h"
#include "View/IUiDocumentViewManager.h"
#include "View/IUiView.h"

#include <utility>

namespace vesk
{

namespace
{

ActionRunner& Runner()
{
    return ActionRunner::GetInstance();
}

/// What an action receives for an input: the value of its text, otherwise the delivered one.
TypedValue MakeTypedValue(const ActionViewInput& input, const EditorText& editor)
{
    const InputMeaning meaning = FindInputMeaning(input.kind);
    const double delivered = QuantityOf(meaning.field) == Quantity::Length
                                 ? LengthUnit::GetCurrent().ToModel(input.value)
                                 : input.value;
    return {meaning.field, editor.modelValue.value_or(delivered), editor.text, editor.isUnchanged,
            meaning.isCommitted};
}

void Redraw(IUiView* pView)
{
    if (pView != nullptr)
        pView->Redraw();
}

}

void ActionManager::Reset()
{
    Runner().RequestEnd();
}

void ActionManager::ProcessCommand(IUiView* pView, ICommand* pCommand,
                                   const CommandParameters& parameters, ICommand* /*pPrevious*/)
{
    if (pCommand == nullptr)
        return;
    const int record = JournalManager::GetInstance().TakeAnnounced(pCommand->GetCommandId());
    Runner().Process(pView, *pCommand, parameters, record);
}

int ActionManager::RunCommand(const std::wstring& commandId, const CommandParameters& parameters)
{
    ICommand* pCommand = ICommandManager::Get()->GetCommand(commandId);
    if (pCommand == nullptr)
        return 0;
    const int record = JournalManager::GetInstance().Add(CommandRecord{commandId, parameters});
    Runner().Process(UiDocumentViewManager::FindCurrentView(), *pCommand, parameters, record);
    return record;
}

void ActionManager::SendCommand(const std::wstring& commandId, const CommandParameters& parameters,
                                ICommand* /*pPrevious*/)
{
    const int record = JournalManager::GetInstance().TakeAnnounced(commandId);
    Runner().Send(commandId, parameters, record);
}

void ActionManager::ProcessViewInput(IUiView* /*pView*/, const ActionViewInput& input)
{
    // A copy: the input may belong to the handler, which the action may drop.
    const ActionViewInput delivered = input;
    const TypedValue typed = MakeTypedValue(input, EditorTextScope::Take());
    Runner().OperateStep([&](IAction& action) { action.OnViewInput(delivered, typed); });
}

void ActionManager::FreeValue(IUiView* pView, InputState field)
{
    Runner().Operate([pView, field](IAction& action) {
        action.OnValueFreed(field);
        TemporaryDimensionMgr::GetInstance()->SetContext(action.CreateDimensionContext());
        Redraw(pView);
    });
}

void ActionManager::RefreshViewInput(IUiView* pView)
{
    TemporaryDimensionMgr::GetInstance()->Regenerate();
    Redraw(pView);
}

void ActionManager::RenewViewInput(IUiView* pView)
{
    const auto regenerate = [](const IAction& action) {
        TemporaryDimensionMgr::GetInstance()->Regenerate(action.CreateDimensionContext());
    };
    // An action whose end was requested accepts nothing more, but its input is still on screen.
    const IAction* pAction = IActionManager::CurrentAction();
    if (!Runner().Operate(regenerate) && pAction != nullptr)
        regenerate(*pAction);
    Redraw(pView);
}

void ActionManager::ProcessMouseMove(IUiView* pView, const Vector3d& world)
{
    Runner().Operate([pView, &world](IAction& action) {
        action.OnMouseMove(world);
        TemporaryDimensionMgr::GetInstance()->SetContext(action.CreateDimensionContext());
        Redraw(pView);
    });
}

void ActionManager::ProcessClick(IUiView* /*pView*/, const Vector3d& world)
{
    if (!HoldInput([world] { ProcessClick(nullptr, world); }))
        Runner().OperateStep([&world](IAction& action) { action.OnClick(world); });
}

bool ActionManager::ProcessPoint(IUiView* /*pView*/, const Vector3d& world)
{
    bool isUsed = false;
    Runner().OperateStep(
        [&](IAction& action) { isUsed = action.TakesPoint() && action.OnPoint(world); });
    return isUsed;
}

void ActionManager::ProcessEscape(IUiView* /*pView*/)
{
    if (HoldInput([] { ProcessEscape(nullptr); }))
        return;
    Runner().OperateStep([](IAction& action) {
        if (!action.OnEscape())
            Reset();
    });
}

bool ActionManager::IsCommandWaiting()
{
    return Runner().IsCommandWaiting();
}

bool ActionManager::HoldInput(std::function<void()> input)
{
    return Runner().Hold(std::move(input));
}

void ActionManager::StepDone()
{
    Runner().OperateStep([](IAction&) {});
}

void ActionManager::FailCommand()
{
    Runner().Fail();
}

std::wstring ActionManager::GetRunningCommandId()
{
    return Runner().GetCommandId();
}

void ActionManager::SetEventLoop(IActionEventLoop* pEventLoop)
{
    Runner().SetEventLoop(pEventLoop);
}

void ActionManager::AddObserver(IActionObserver* pObserver)
{
    Runner().AddObserver(pObserver);
}

void ActionManager::RemoveObserver(IActionObserver* pObserver)
{
    Runner().RemoveObserver(pObserver);
}

}
