#include "VeskUiQtImpl/ProcessCommandUtil.h"

#include "Command/ActionManager.h"
#include "Command/IAction.h"
#include "Command/IActionManager.h"
#include "Command/ICommand.h"
#include "Command/ICommandManager.h"
#include "Foundation/FirstException.h"
#include "Foundation/IApplication.h"
#include "Foundation/UpdateCtrlStatusEvent.h"
#include "Journal/CommandParameters.h"
#include "Journal/IJournalData.h"
#include "Journal/IJournalManager.h"
#include "Journal/NqIJournalFactory.h"
#include "VeskUiQtImpl/CheckSite.h"
#include "VeskUiQtImpl/ViewLookup.h"
#include "View/IUiDocumentViewManager.h"
#include "View/IUiManager.h"
#include "View/IUiView.h"

#include "HostUi/QtVersions.h"
#include "Qtitan/RibbonButtonControl.h"

#include <QAction>
#include <QCoreApplication>
#include <QCursor>
#include <QMenu>
#include <QMouseEvent>
#include <QToolButton>

#include <utility>

namespace vesk
{
namespace
{

OwnerPtr<IJournalCommandData> CreateJournalCommandData()
{
    static const std::wstring s_className = L"JournalCommandData";
    NqIJournalFactory* pFactory = NqIJournalFactory::GetImpl();
    if (pFactory == nullptr)
        return nullptr;
    return OwnerPtrCast<IJournalCommandData>(pFactory->CreateJournalData(s_className));
}

/// The command with that id; null, with a warning in the name of `function`, if there is none.
/// Without a command manager no command is known.
ICommand* FindCommand(const std::wstring& commandId, const char* function)
{
    const ICommandManager* pManager = ICommandManager::Get();
    ICommand* pCommand = pManager != nullptr ? pManager->GetCommand(commandId) : nullptr;
    if (pCommand == nullptr)
    {
        const std::wstring message = L"无法找到字符串对应的注册命令：" + commandId;
        Check(false, VESK_SITE(function, message.c_str()));
    }
    return pCommand;
}

/// Shows the prompt of the running action. Looks everything up again, since the command may have
/// changed it.
void ShowViewText()
{
    const IAction* pAction = IActionManager::CurrentAction();
    IUiView* pView = FindCurrentView();
    if (pAction != nullptr && pView != nullptr)
        pView->SetViewText(pAction->GetViewText());
}

/// Marks the command as executed at the end of its scope, however the scope is left.
class ExecutedAtTheEnd
{
public:
    explicit ExecutedAtTheEnd(bool& isExecuted) : m_isExecuted(isExecuted) {}
    ~ExecutedAtTheEnd() { m_isExecuted = true; }
    ExecutedAtTheEnd(const ExecutedAtTheEnd&) = delete;
    ExecutedAtTheEnd& operator=(const ExecutedAtTheEnd&) = delete;

private:
    bool& m_isExecuted;
};

struct ReplayTarget
{
    QWidget* pWidget;
    QPointF position;
};

/// Where a click reaches the action; without a widget if it is in neither a ribbon nor a menu.
ReplayTarget FindReplayTarget(QAction* pAction)
{
    QWidget* pParent = ParentWidgetOf(*pAction);
    const auto* pRibbonButton = qobject_cast<Qtitan::RibbonButtonControl*>(pParent);
    if (pRibbonButton != nullptr && pRibbonButton->widget() != nullptr)
        return {pRibbonButton->widget(), QPointF(1, 1)};
    auto* pMenu = qobject_cast<QMenu*>(pParent);
    if (pMenu == nullptr)
        return {};
    return {pMenu, pMenu->actionGeometry(pAction).center()};
}

void PostMouseEvent(QEvent::Type type, const ReplayTarget& target)
{
    QCoreApplication::postEvent(target.pWidget,
                                new QMouseEvent(type, target.position, QCursor::pos(),
                                                Qt::LeftButton, Qt::LeftButton, Qt::NoModifier));
}

}

bool ProcessCommandUtil::s_isLastCommandExecuted = true;
QPointer<QAction> ProcessCommandUtil::s_pendingAction;

void ProcessCommandUtil::ProcessRibbonBarCommand(const std::wstring& commandId,
                                                 const CommandParameters& parameters,
                                                 QObject* pSender)
{
    constexpr char Function[] = "vesk::ProcessCommandUtil::ProcessRibbonBarCommand";
    if (!Check(pSender != nullptr, VESK_SITE(Function, L"pSender为空")))
        return;
    if (!Begin(pSender))
        return;
    const ExecutedAtTheEnd executed(s_isLastCommandExecuted);
    const IUiDocumentViewManager* pUiViewMgr = IUiDocumentViewManager::Get();
    if (!Check(pUiViewMgr != nullptr, VESK_SITE(Function, L"pUiViewMgr为空")))
        return;

    FirstException exception;
    if (ICommand* pCommand = FindCommand(commandId, Function))
    {
        if (!Journal(*pCommand, parameters, Function))
            return;
        exception.Catch([&] {
            ActionManager::ProcessCommand(pUiViewMgr->GetCurrentUiView(), pCommand, parameters,
                                          nullptr);
        });
    }
    exception.Catch(&ShowViewText);
    exception.Catch(&Finish);
    exception.Throw();
}

void ProcessCommandUtil::ProcessStatusBarCommand(const std::wstring& commandId,
                                                 const CommandParameters&, QObject* pSender)
{
    constexpr char Function[] = "vesk::ProcessCommandUtil::ProcessStatusBarCommand";
    if (!Begin(pSender))
        return;
    const ExecutedAtTheEnd executed(s_isLastCommandExecuted);

    FirstException exception;
    const CommandParameters noParameters;
    if (ICommand* pCommand = FindCommand(commandId, Function))
    {
        if (!Journal(*pCommand, noParameters, Function))
            return;
        exception.Catch(
            [&] { ActionManager::SendCommand(pCommand->GetCommandId(), noParameters, nullptr); });
    }
    IMainWindow::GetMainWindow();
    exception.Catch(&Finish);
    exception.Throw();
}

bool ProcessCommandUtil::IsLastCommandExecuted()
{
    return s_isLastCommandExecuted;
}

/// Begins a command. Returns false and begins nothing for an action chosen while a command runs:
/// that command is ended and the action is put off.
bool ProcessCommandUtil::Begin(QObject* pSender)
{
    const QPointer<QAction> pAction(qobject_cast<QAction*>(pSender));
    if (pAction == nullptr || s_isLastCommandExecuted)
    {
        s_isLastCommandExecuted = false;
        return true;
    }

    FirstException exception;
    exception.Catch(&ActionManager::Reset);
    s_pendingAction = pAction;
    s_isLastCommandExecuted = true;
    exception.Throw();
    return false;
}

/// Writes the record of a command about to run. Returns false if it cannot; the command must not
/// run then.
bool ProcessCommandUtil::Journal(const ICommand& command, const CommandParameters& parameters,
                                 const char* function)
{
    OwnerPtr<IJournalCommandData> opData = CreateJournalCommandData();
    if (!Check(opData != nullptr, VESK_SITE(function, L"CREATE_JOURNAL_DATA(IJournalCommandData, "
                                                      L"JOURNAL_COMMAND_DATA)返回空指针")))
        return false;

    opData->SetCommandId(command.GetCommandId());
    if (command.IsJournalIdOnly())
    {
        IJournalManager::Get()->AddCommandData(std::move(opData));
        return true;
    }
    opData->SetCommandParameters(parameters);
    IJournalManager::Get()->AddCommandDataWithParameters(std::move(opData));
    return true;
}

/// Refreshes the controls and replays what the user chose meanwhile.
void ProcessCommandUtil::Finish()
{
    FirstException exception;
    exception.Catch([] {
        if (IApplication* pApplication = IApplication::Get())
            pApplication->PostEvent(MakeOwner<UpdateCtrlStatusEvent>());
    });
    exception.Catch(&ReplayPendingAction);
    exception.Throw();
}

/// Clicks the pending action once more, through the event loop.
void ProcessCommandUtil::ReplayPendingAction()
{
    QAction* pAction = s_pendingAction;
    s_pendingAction = nullptr;
    if (pAction == nullptr)
        return;

    const ReplayTarget target = FindReplayTarget(pAction);
    if (target.pWidget == nullptr)
        return;
    PostMouseEvent(QEvent::MouseButtonPress, target);
    PostMouseEvent(QEvent::MouseButtonRelease, target);
}

}
