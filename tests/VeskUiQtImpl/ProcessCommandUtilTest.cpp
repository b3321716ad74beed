#include "CommandFixture.h"

#include "Command/ActionManager.h"
#include "Command/ICommandManager.h"
#include "Support/HostValues.h"
#include "Support/TestEventLoop.h"
#include "Support/TestValues.h"

#include <QAction>

namespace vesk::test
{

/// A host with a second view, in which the command "Waiting" is chosen while another one is
/// running. When its turn comes, the first view is current again.
struct WaitingFixture : CommandFixture
{
    WaitingFixture()
    {
        host.AddInteractiveCommand(L"Running");
        ICommandManager::Get()->AddCommand(
            MakeOwner<Command>(L"Waiting", Command::Kind::Interactive,
                               [this](IUiView* pView, const CommandParameters&) {
                                   pUsed = pView;
                                   return OwnerPtr<IAction>();
                               }));
        host.core.GetViewManager().AddView(&other);
    }

    ~WaitingFixture() { host.core.GetViewManager().RemoveView(&other); }

    void Choose()
    {
        host.core.GetViewManager().SetCurrentView(&other);
        ProcessCommandUtil::ProcessRibbonBarCommand(L"Waiting", {}, &sender);
        host.core.GetViewManager().SetCurrentView(&host.view);
    }

    TestEventLoop loop;
    TestView other{2, &host.window};
    IUiView* pUsed = nullptr;
};

class ProcessCommandUtilTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { QVERIFY(ProcessCommandUtil::IsLastCommandExecuted()); }

    void isExecutedOnlyOutsideACommand_data() { AddOperations(); }
    void isExecutedOnlyOutsideACommand();
    void isJournaledBeforeItRuns_data() { AddOperations(); }
    void isJournaledBeforeItRuns();
    void ribbonCommandIsJournaledAndRunWithItsParameters();
    void statusBarCommandIgnoresItsParameters();
    void commandThatAsksForItIsJournaledByItsIdAlone_data() { AddOperations(); }
    void commandThatAsksForItIsJournaledByItsIdAlone();
    void ribbonCommandRunsInTheCurrentView();
    void waitingCommandRunsInTheViewInWhichItWasChosen();
    void waitingCommandRunsInTheCurrentViewWhenItsOwnIsGone();
    void ribbonCommandRunsBesideAnAction();
    void statusBarCommandEndsTheRunningActionFirst();
    void ribbonCommandShowsWhatTheActionExpects();
    void ribbonCommandShowsItInTheViewThatIsCurrentAfterwards();
    void ribbonCommandShowsNothingWithoutAnAction();
    void controlsAreRefreshedOnceAfterTheCommand_data() { AddOperations(); }
    void controlsAreRefreshedOnceAfterTheCommand();
    void plainSenderIsServedAtOnceInsideACommand_data() { AddOperations(); }
    void plainSenderIsServedAtOnceInsideACommand();
    void plainSenderOfARibbonCommandRunsNested();
    void actionAsSenderIsServedWhenNothingRuns();
};

void ProcessCommandUtilTest::isExecutedOnlyOutsideACommand()
{
    QFETCH(Operation, operation);
    CommandFixture f;
    QVERIFY(ProcessCommandUtil::IsLastCommandExecuted());

    operation(L"Plain", {}, &f.sender);

    QVERIFY(!f.wasExecuted);
    QVERIFY(ProcessCommandUtil::IsLastCommandExecuted());
}

void ProcessCommandUtilTest::isJournaledBeforeItRuns()
{
    QFETCH(Operation, operation);
    CommandFixture f;

    operation(L"Plain", {}, &f.sender);

    QCOMPARE(f.recordCountInside, std::size_t(1));
    QCOMPARE(f.host.journal.GetCommands().size(), std::size_t(1));
    QCOMPARE(f.host.journal.GetCommands()[0].commandId, std::wstring(L"Plain"));
}

void ProcessCommandUtilTest::ribbonCommandIsJournaledAndRunWithItsParameters()
{
    CommandFixture f;

    ProcessCommandUtil::ProcessRibbonBarCommand(L"Plain", SomeParameters(), &f.sender);

    QCOMPARE(f.calls.size(), std::size_t(1));
    QCOMPARE(f.calls[0], SomeParameters());
    QCOMPARE(f.host.journal.GetCommands()[0].parameters, SomeParameters());
}

void ProcessCommandUtilTest::statusBarCommandIgnoresItsParameters()
{
    CommandFixture f;

    ProcessCommandUtil::ProcessStatusBarCommand(L"Plain", SomeParameters(), &f.sender);

    QCOMPARE(f.calls.size(), std::size_t(1));
    QVERIFY(f.calls[0].IsEmpty());
    QVERIFY(f.host.journal.GetCommands()[0].parameters.IsEmpty());
}

void ProcessCommandUtilTest::commandThatAsksForItIsJournaledByItsIdAlone()
{
    QFETCH(Operation, operation);
    CommandFixture f;
    f.pCommand->SetJournalIdOnly(true);

    operation(L"Plain", SomeParameters(), &f.sender);

    QCOMPARE(f.host.journal.GetCommands().size(), std::size_t(1));
    QCOMPARE(f.host.journal.GetCommands()[0].commandId, std::wstring(L"Plain"));
    QVERIFY(f.host.journal.GetCommands()[0].parameters.IsEmpty());
    QCOMPARE(f.calls.size(), std::size_t(1));
}

void ProcessCommandUtilTest::ribbonCommandRunsInTheCurrentView()
{
    CommandFixture f;
    f.host.AddInteractiveCommand(L"Interactive");
    TestView other(2, &f.host.window);
    f.host.core.GetViewManager().AddView(&other);
    f.host.core.GetViewManager().SetCurrentView(&other);

    ProcessCommandUtil::ProcessRibbonBarCommand(L"Interactive", {}, &f.sender);

    QVERIFY(f.host.view.GetTexts().empty());
    QVERIFY(!other.GetTexts().empty());
    QCOMPARE(other.GetTexts().back(), std::wstring(L"test action"));
    ActionManager::Reset();
    f.host.core.GetViewManager().RemoveView(&other);
}

void ProcessCommandUtilTest::waitingCommandRunsInTheViewInWhichItWasChosen()
{
    WaitingFixture f;
    f.loop.SetOnRun([&f] { f.Choose(); });

    ProcessCommandUtil::ProcessRibbonBarCommand(L"Running", {}, &f.sender);

    QCOMPARE(f.pUsed, static_cast<IUiView*>(&f.other));
}

void ProcessCommandUtilTest::waitingCommandRunsInTheCurrentViewWhenItsOwnIsGone()
{
    WaitingFixture f;
    f.loop.SetOnRun([&f] {
        f.Choose();
        f.host.core.GetViewManager().RemoveView(&f.other);
    });

    ProcessCommandUtil::ProcessRibbonBarCommand(L"Running", {}, &f.sender);

    QCOMPARE(f.pUsed, static_cast<IUiView*>(&f.host.view));
}

void ProcessCommandUtilTest::ribbonCommandRunsBesideAnAction()
{
    CommandFixture f;
    f.host.BeginAction();

    ProcessCommandUtil::ProcessRibbonBarCommand(L"Plain", {}, &f.sender);

    QCOMPARE(f.calls.size(), std::size_t(1));
    QCOMPARE(f.host.actionLog.endCount, 0);
}

void ProcessCommandUtilTest::statusBarCommandEndsTheRunningActionFirst()
{
    CommandFixture f;
    f.host.BeginAction();
    int endCountInside = -1;
    f.onCommand = [&] { endCountInside = f.host.actionLog.endCount; };

    ProcessCommandUtil::ProcessStatusBarCommand(L"Plain", {}, &f.sender);

    QCOMPARE(endCountInside, 1);
}

void ProcessCommandUtilTest::ribbonCommandShowsWhatTheActionExpects()
{
    CommandFixture f;
    f.host.BeginAction();
    const std::size_t count = f.host.view.GetTexts().size();

    ProcessCommandUtil::ProcessRibbonBarCommand(L"Plain", {}, &f.sender);

    QCOMPARE(f.host.view.GetTexts().size(), count + 1);
    QCOMPARE(f.host.view.GetTexts().back(), std::wstring(L"test action"));
}

void ProcessCommandUtilTest::ribbonCommandShowsItInTheViewThatIsCurrentAfterwards()
{
    CommandFixture f;
    f.host.BeginAction();
    TestView other(2, &f.host.window);
    f.host.core.GetViewManager().AddView(&other);
    f.onCommand = [&] { f.host.core.GetViewManager().SetCurrentView(&other); };

    ProcessCommandUtil::ProcessRibbonBarCommand(L"Plain", {}, &f.sender);

    QCOMPARE(other.GetTexts(), std::vector<std::wstring>{L"test action"});
    ActionManager::Reset();
    f.host.core.GetViewManager().RemoveView(&other);
}

void ProcessCommandUtilTest::ribbonCommandShowsNothingWithoutAnAction()
{
    CommandFixture f;

    ProcessCommandUtil::ProcessRibbonBarCommand(L"Plain", {}, &f.sender);

    QVERIFY(f.host.view.GetTexts().empty());
}

void ProcessCommandUtilTest::controlsAreRefreshedOnceAfterTheCommand()
{
    QFETCH(Operation, operation);
    CommandFixture f;
    int countInside = -1;
    f.onCommand = [&] { countInside = f.host.application.GetStatusUpdateCount(); };

    operation(L"Plain", {}, &f.sender);

    QCOMPARE(countInside, 0);
    QCOMPARE(f.host.application.GetStatusUpdateCount(), 1);
}

void ProcessCommandUtilTest::plainSenderIsServedAtOnceInsideACommand()
{
    QFETCH(Operation, operation);
    CommandFixture f;
    std::size_t recordCount = 0;
    bool isExecuted = false;
    f.onCommand = [&] {
        operation(L"Plain", {}, &f.sender);
        recordCount = f.host.journal.GetCommands().size();
        isExecuted = ProcessCommandUtil::IsLastCommandExecuted();
    };

    operation(L"Plain", {}, &f.sender);

    QCOMPARE(recordCount, std::size_t(2));
    QVERIFY(isExecuted);
    QCOMPARE(f.calls.size(), std::size_t(2));
}

void ProcessCommandUtilTest::plainSenderOfARibbonCommandRunsNested()
{
    CommandFixture f;
    std::size_t callCount = 0;
    f.onCommand = [&] {
        ProcessCommandUtil::ProcessRibbonBarCommand(L"Plain", {}, &f.sender);
        callCount = f.calls.size();
    };

    ProcessCommandUtil::ProcessRibbonBarCommand(L"Plain", {}, &f.sender);

    QCOMPARE(callCount, std::size_t(2));
}

void ProcessCommandUtilTest::actionAsSenderIsServedWhenNothingRuns()
{
    CommandFixture f;
    QAction action;

    ProcessCommandUtil::ProcessRibbonBarCommand(L"Plain", {}, &action);

    QCOMPARE(f.calls.size(), std::size_t(1));
}

}

VESK_TESTS(vesk::test::ProcessCommandUtilTest);
#include "ProcessCommandUtilTest.moc"
