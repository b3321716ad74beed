#include "NotingHost.h"

#include "Command/ActionManager.h"
#include "Command/IActionManager.h"
#include "Foundation/IApplication.h"
#include "Foundation/UpdateCtrlStatusEvent.h"
#include "Journal/NqIJournalFactory.h"
#include "View/IUiManager.h"
#include "Warnings/DebugMessageMgr.h"

#include <utility>

namespace vesk::test
{

namespace
{

NotingHost* s_pHost = nullptr;

void Run(std::function<void()>& act)
{
    if (const auto once = std::exchange(act, nullptr))
        once();
}

class NotingFactory final : public NqIJournalFactory
{
public:
    OwnerPtr<IJournalData> CreateJournalData(const std::wstring& className) override
    {
        Note("make " + QString::fromStdWString(className));
        return MakeOwner<NotingRecord>();
    }
    OwnerPtr<IJournalUiObject> CreateJournalUiObject() override { return nullptr; }
};

class NotingApplication final : public IApplication
{
public:
    void PostEvent(OwnerPtr<IApplicationEvent> opEvent) override
    {
        if (s_pHost->onRefresh)
            s_pHost->onRefresh();
        const bool isRefresh = dynamic_cast<UpdateCtrlStatusEvent*>(opEvent.Get()) != nullptr;
        Note(isRefresh ? "refresh" : "another event");
    }
    IApplicationWindow* GetMainWindow() const override { return nullptr; }

    using IApplication::Set;
};

NotingFactory s_factory;
NotingViewManager s_viewManager;
NotingApplication s_application;

}

IUiView* NotingViewManager::GetCurrentUiView() const
{
    return s_pHost->pCurrentView;
}

NotingHost::NotingHost()
{
    s_notes.clear();
    s_pHost = this;
    NqIJournalFactory::SetImpl(&s_factory);
    NotingViewManager::Set(&s_viewManager);
    NotingApplication::Set(&s_application);
    DebugMessageMgr::GetDebugMessageMgr()->SetAttended(false);
}

NotingHost::~NotingHost()
{
    NotingApplication::Set(nullptr);
    NotingViewManager::Set(nullptr);
    NqIJournalFactory::SetImpl(nullptr);
    s_pHost = nullptr;
}

}

namespace vesk
{

// These functions of the program take precedence over those of the host.
ICommandManager* ICommandManager::Get()
{
    return &test::s_pHost->commands;
}

IJournalManager* IJournalManager::Get()
{
    return &test::s_pHost->journal;
}

IAction* IActionManager::CurrentAction()
{
    return test::s_pHost->hasAction ? &test::s_pHost->action : nullptr;
}

IMainWindow* IMainWindow::GetMainWindow()
{
    test::Note("main window");
    return nullptr;
}

void ActionManager::Reset()
{
    test::Note("end");
    test::Run(test::s_pHost->onReset);
}

void ActionManager::ProcessCommand(IUiView* pView, ICommand* pCommand,
                                   const CommandParameters& parameters, ICommand* pPrevious)
{
    test::Note(QString("process %1 in view %2 with %3%4")
                   .arg(QString::fromStdWString(pCommand->GetCommandId()))
                   .arg(pView != nullptr ? pView->GetId() : 0)
                   .arg(test::Describe(parameters), pPrevious != nullptr ? " after another" : ""));
    test::Run(test::s_pHost->onCommand);
}

void ActionManager::SendCommand(const std::wstring& commandId, const CommandParameters& parameters,
                                ICommand* pPrevious)
{
    test::Note(QString("send %1 with %2%3")
                   .arg(QString::fromStdWString(commandId), test::Describe(parameters),
                        pPrevious != nullptr ? " after another" : ""));
    test::Run(test::s_pHost->onCommand);
}

}
