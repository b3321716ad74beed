#include "CommandFixture.h"

#include "Journal/IJournalData.h"
#include "Journal/IJournalUiObject.h"
#include "Journal/NqIJournalFactory.h"

#include <QAction>

namespace vesk::test
{

/// Creates journal records of another class, and records their destruction.
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

class ProcessCommandFailureTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { QVERIFY(ProcessCommandUtil::IsLastCommandExecuted()); }

    void ribbonCommandMayTakeTheViewManagerAway();
    void statusBarCommandNeedsNoViewManager();
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
    void actionIsPutOffWithoutAskingForTheViewManager();
};

void ProcessCommandFailureTest::ribbonCommandMayTakeTheViewManagerAway()
{
    CommandFixture f;
    f.host.BeginAction();
    std::unique_ptr<NoViewManager> pGone;
    f.onCommand = [&] { pGone = std::make_unique<NoViewManager>(); };

    ProcessCommandUtil::ProcessRibbonBarCommand(L"Plain", {}, &f.sender);

    QCOMPARE(f.host.application.GetStatusUpdateCount() > 0, true);
    pGone.reset();
}

void ProcessCommandFailureTest::statusBarCommandNeedsNoViewManager()
{
    CommandFixture f;
    const NoViewManager gone;

    ProcessCommandUtil::ProcessStatusBarCommand(L"Plain", {}, &f.sender);

    QCOMPARE(f.calls.size(), std::size_t(1));
}

void ProcessCommandFailureTest::unknownCommandIsReportedAndControlsAreRefreshed()
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

void ProcessCommandFailureTest::unknownRibbonCommandStillShowsTheViewText()
{
    CommandFixture f;
    f.host.BeginAction();
    const std::size_t count = f.host.view.GetTexts().size();

    ProcessCommandUtil::ProcessRibbonBarCommand(L"No.Such", {}, &f.sender);

    EXPECT_WARNING(f.host.warnings, L"无法找到字符串对应的注册命令：No.Such", Ribbon);
    QCOMPARE(f.host.view.GetTexts().size(), count + 1);
}

void ProcessCommandFailureTest::ribbonCommandWithoutSenderIsReported()
{
    CommandFixture f;
    const NoViewManager gone;

    ProcessCommandUtil::ProcessRibbonBarCommand(L"Plain", {}, nullptr);

    EXPECT_WARNING(f.host.warnings, L"pSender为空", Ribbon);
    QVERIFY(f.calls.empty());
    QVERIFY(f.host.journal.GetCommands().empty());
    QCOMPARE(f.host.application.GetStatusUpdateCount(), 0);
}

void ProcessCommandFailureTest::ribbonCommandWithoutSenderLeavesTheStateAsItIs()
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

void ProcessCommandFailureTest::statusBarCommandNeedsNoSender()
{
    CommandFixture f;

    ProcessCommandUtil::ProcessStatusBarCommand(L"Plain", {}, nullptr);

    QCOMPARE(f.calls.size(), std::size_t(1));
}

void ProcessCommandFailureTest::ribbonCommandWithoutViewManagerIsReported()
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

void ProcessCommandFailureTest::commandThatCannotBeJournaledIsNotRun()
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

void ProcessCommandFailureTest::foreignJournalRecordIsFreedAndReported()
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

void ProcessCommandFailureTest::worksWithoutAnApplication()
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

void ProcessCommandFailureTest::actionIsPutOffWithoutAskingForTheViewManager()
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

VESK_TESTS(vesk::test::ProcessCommandFailureTest);
#include "ProcessCommandFailureTest.moc"
