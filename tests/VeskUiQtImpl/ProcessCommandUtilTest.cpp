#include "ProcessCommandUtil.h"

#include "Command/ActionManager.h"
#include "Journal/IJournalData.h"
#include "Journal/IJournalUiObject.h"
#include "Journal/NqIJournalFactory.h"
#include "Support/HostFixture.h"

#include <QAction>
#include <QtTest>

namespace vesk::test
{

using Operation = void (*)(const std::wstring&, const CommandParameters&, QObject*);

constexpr char Ribbon[] = "vesk::ProcessCommandUtil::ProcessRibbonBarCommand";
constexpr char StatusBar[] = "vesk::ProcessCommandUtil::ProcessStatusBarCommand";

CommandParameters SomeParameters()
{
    CommandParameters parameters;
    parameters.Add(L"Clicked", CommandParameterValue(true));
    return parameters;
}

/// Removes the view manager while it lives.
class NoViewManager
{
public:
    NoViewManager() : m_pManager(IUiDocumentViewManager::Get()) { Access::Set(nullptr); }
    ~NoViewManager() { Access::Set(m_pManager); }
    NoViewManager(const NoViewManager&) = delete;
    NoViewManager& operator=(const NoViewManager&) = delete;

private:
    struct Access : IUiDocumentViewManager
    {
        using IUiDocumentViewManager::Set;
    };
    IUiDocumentViewManager* m_pManager;
};

/// Makes journal records of another class, and notes their end.
class ForeignJournalFactory final : public NqIJournalFactory
{
public:
    ForeignJournalFactory() : m_pPrevious(GetImpl()) { SetImpl(this); }
    ~ForeignJournalFactory() override { SetImpl(m_pPrevious); }

    OwnerPtr<IJournalData> CreateJournalData(const std::wstring& className) override
    {
        lastClassName = className;
        return MakeOwner<ForeignData>(freedCount);
    }
    OwnerPtr<IJournalUiObject> CreateJournalUiObject() override { return nullptr; }

    std::wstring lastClassName;
    int freedCount = 0;

private:
    class ForeignData final : public IJournalData
    {
    public:
        explicit ForeignData(int& count) : m_count(count) {}
        ~ForeignData() override { ++m_count; }

    private:
        int& m_count;
    };

    NqIJournalFactory* m_pPrevious;
};

/// A host with one plain command, "Plain", that notes its calls.
struct CommandFixture
{
    CommandFixture()
    {
        pCommand = host.AddCommand(L"Plain", [this](const CommandParameters& parameters) {
            calls.push_back(parameters);
            wasExecuted = ProcessCommandUtil::IsLastCommandExecuted();
            recordCountInside = host.journal.GetCommands().size();
            if (const auto act = std::exchange(onCommand, nullptr))
                act();
        });
    }

    HostFixture host;
    QObject sender;
    Command* pCommand;
    std::vector<CommandParameters> calls;

    /// Called inside the next call of the command, once.
    std::function<void()> onCommand;
    bool wasExecuted = true;
    std::size_t recordCountInside = 0;
};

}

Q_DECLARE_METATYPE(vesk::test::Operation)

namespace vesk::test
{

void AddOperations()
{
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<QByteArray>("function");
    QTest::newRow("ribbon") << Operation(&ProcessCommandUtil::ProcessRibbonBarCommand)
                            << QByteArray(Ribbon);
    QTest::newRow("status bar") << Operation(&ProcessCommandUtil::ProcessStatusBarCommand)
                                << QByteArray(StatusBar);
}

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
    void ribbonCommandRunsBesideAnAction();
    void statusBarCommandEndsTheRunningActionFirst();
    void ribbonCommandShowsWhatTheActionExpects();
    void ribbonCommandShowsItInTheViewThatIsCurrentAfterwards();
    void ribbonCommandShowsNothingWithoutAnAction();
    void ribbonCommandMayTakeTheViewManagerAway();
    void statusBarCommandNeedsNoViewManager();
    void controlsAreRefreshedOnceAfterTheCommand_data() { AddOperations(); }
    void controlsAreRefreshedOnceAfterTheCommand();
    void unknownCommandIsReportedAndControlsAreRefreshed_data() { AddOperations(); }
    void unknownCommandIsReportedAndControlsAreRefreshed();
    void unknownRibbonCommandStillShowsTheViewText();
    void ribbonCommandWithoutSenderIsReported();
    void ribbonCommandWithoutSenderLeavesTheStateAsItIs();
    void statusBarCommandNeedsNoSender();
    void ribbonCommandWithoutViewManagerIsReported();
    void commandThatCannotBeJournaledIsNotRun_data() { AddOperations(); }
    void commandThatCannotBeJournaledIsNotRun();
    void foreignJournalRecordIsFreedAndReported_data() { AddOperations(); }
    void foreignJournalRecordIsFreedAndReported();
    void worksWithoutAnApplication_data() { AddOperations(); }
    void worksWithoutAnApplication();
    void plainSenderIsServedAtOnceInsideACommand_data() { AddOperations(); }
    void plainSenderIsServedAtOnceInsideACommand();
    void plainSenderOfARibbonCommandRunsNested();
    void actionAsSenderIsServedWhenNothingRuns();
    void actionIsPutOffWithoutAskingForTheViewManager();
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
    QVERIFY(f.calls[0] == SomeParameters());
    QVERIFY(f.host.journal.GetCommands()[0].parameters == SomeParameters());
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

void ProcessCommandUtilTest::ribbonCommandMayTakeTheViewManagerAway()
{
    CommandFixture f;
    f.host.BeginAction();
    std::unique_ptr<NoViewManager> pGone;
    f.onCommand = [&] { pGone = std::make_unique<NoViewManager>(); };

    ProcessCommandUtil::ProcessRibbonBarCommand(L"Plain", {}, &f.sender);

    QCOMPARE(f.host.application.GetStatusUpdateCount() > 0, true);
    pGone.reset();
}

void ProcessCommandUtilTest::statusBarCommandNeedsNoViewManager()
{
    CommandFixture f;
    const NoViewManager gone;

    ProcessCommandUtil::ProcessStatusBarCommand(L"Plain", {}, &f.sender);

    QCOMPARE(f.calls.size(), std::size_t(1));
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

void ProcessCommandUtilTest::unknownCommandIsReportedAndControlsAreRefreshed()
{
    QFETCH(Operation, operation);
    QFETCH(QByteArray, function);
    CommandFixture f;

    operation(L"No.Such", {}, &f.sender);

    EXPECT_WARNING(f.host.warnings, L"无法找到字符串对应的注册命令：No.Such",
                   function.toStdString());
    QVERIFY(f.host.journal.GetCommands().empty());
    QCOMPARE(f.host.application.GetStatusUpdateCount(), 1);
    QVERIFY(ProcessCommandUtil::IsLastCommandExecuted());
}

void ProcessCommandUtilTest::unknownRibbonCommandStillShowsTheViewText()
{
    CommandFixture f;
    f.host.BeginAction();
    const std::size_t count = f.host.view.GetTexts().size();

    ProcessCommandUtil::ProcessRibbonBarCommand(L"No.Such", {}, &f.sender);

    EXPECT_WARNING(f.host.warnings, L"无法找到字符串对应的注册命令：No.Such", Ribbon);
    QCOMPARE(f.host.view.GetTexts().size(), count + 1);
}

void ProcessCommandUtilTest::ribbonCommandWithoutSenderIsReported()
{
    CommandFixture f;
    const NoViewManager gone;

    ProcessCommandUtil::ProcessRibbonBarCommand(L"Plain", {}, nullptr);

    EXPECT_WARNING(f.host.warnings, L"pSender为空", Ribbon);
    QVERIFY(f.calls.empty());
    QVERIFY(f.host.journal.GetCommands().empty());
    QCOMPARE(f.host.application.GetStatusUpdateCount(), 0);
}

void ProcessCommandUtilTest::ribbonCommandWithoutSenderLeavesTheStateAsItIs()
{
    CommandFixture f;
    bool isExecuted = true;
    f.onCommand = [&] {
        ProcessCommandUtil::ProcessRibbonBarCommand(L"Plain", {}, nullptr);
        isExecuted = ProcessCommandUtil::IsLastCommandExecuted();
    };

    ProcessCommandUtil::ProcessRibbonBarCommand(L"Plain", {}, &f.sender);

    EXPECT_WARNING(f.host.warnings, L"pSender为空", Ribbon);
    QVERIFY(!isExecuted);
    QCOMPARE(f.calls.size(), std::size_t(1));
}

void ProcessCommandUtilTest::statusBarCommandNeedsNoSender()
{
    CommandFixture f;

    ProcessCommandUtil::ProcessStatusBarCommand(L"Plain", {}, nullptr);

    QCOMPARE(f.calls.size(), std::size_t(1));
}

void ProcessCommandUtilTest::ribbonCommandWithoutViewManagerIsReported()
{
    CommandFixture f;
    const NoViewManager gone;

    ProcessCommandUtil::ProcessRibbonBarCommand(L"Plain", {}, &f.sender);

    EXPECT_WARNING(f.host.warnings, L"pUiViewMgr为空", Ribbon);
    QVERIFY(ProcessCommandUtil::IsLastCommandExecuted());
    QVERIFY(f.calls.empty());
    QVERIFY(f.host.journal.GetCommands().empty());
    QCOMPARE(f.host.application.GetStatusUpdateCount(), 0);
}

void ProcessCommandUtilTest::commandThatCannotBeJournaledIsNotRun()
{
    QFETCH(Operation, operation);
    QFETCH(QByteArray, function);
    CommandFixture f;
    NqIJournalFactory* pFactory = NqIJournalFactory::GetImpl();
    NqIJournalFactory::SetImpl(nullptr);

    operation(L"Plain", {}, &f.sender);

    NqIJournalFactory::SetImpl(pFactory);
    EXPECT_WARNING(f.host.warnings,
                   L"CREATE_JOURNAL_DATA(IJournalCommandData, JOURNAL_COMMAND_DATA)返回空指针",
                   function.toStdString());
    QVERIFY(ProcessCommandUtil::IsLastCommandExecuted());
    QVERIFY(f.calls.empty());
    QCOMPARE(f.host.application.GetStatusUpdateCount(), 0);
}

void ProcessCommandUtilTest::foreignJournalRecordIsFreedAndReported()
{
    QFETCH(Operation, operation);
    QFETCH(QByteArray, function);
    CommandFixture f;
    const ForeignJournalFactory factory;

    operation(L"Plain", {}, &f.sender);

    EXPECT_WARNING(f.host.warnings,
                   L"CREATE_JOURNAL_DATA(IJournalCommandData, JOURNAL_COMMAND_DATA)返回空指针",
                   function.toStdString());
    QCOMPARE(factory.lastClassName, std::wstring(L"JournalCommandData"));
    QCOMPARE(factory.freedCount, 1);
    QVERIFY(f.calls.empty());
}

void ProcessCommandUtilTest::worksWithoutAnApplication()
{
    QFETCH(Operation, operation);
    CommandFixture f;
    struct Access : IApplication
    {
        using IApplication::Set;
    };
    Access::Set(nullptr);

    operation(L"Plain", {}, &f.sender);

    Access::Set(&f.host.application);
    QCOMPARE(f.calls.size(), std::size_t(1));
    QCOMPARE(f.host.application.GetStatusUpdateCount(), 0);
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

void ProcessCommandUtilTest::actionIsPutOffWithoutAskingForTheViewManager()
{
    CommandFixture f;
    QAction action;
    bool isExecuted = false;
    f.onCommand = [&] {
        const NoViewManager gone;
        ProcessCommandUtil::ProcessRibbonBarCommand(L"Plain", {}, &action);
        isExecuted = ProcessCommandUtil::IsLastCommandExecuted();
    };

    ProcessCommandUtil::ProcessRibbonBarCommand(L"Plain", {}, &f.sender);

    QVERIFY(isExecuted);
    QCOMPARE(f.calls.size(), std::size_t(1));
}

}

QTEST_MAIN(vesk::test::ProcessCommandUtilTest)
#include "ProcessCommandUtilTest.moc"
