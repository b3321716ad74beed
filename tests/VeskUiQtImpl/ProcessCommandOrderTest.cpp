#include "NotingHost.h"

#include "Foundation/UpdateCtrlStatusEvent.h"
#include "Graphics/IGraphicsNode.h"
#include "Journal/NqIJournalFactory.h"
#include "Support/TestValues.h"
#include "Support/WarningRecorder.h"

#include <QAction>
#include <QMenu>
#include <QMouseEvent>
#include <QProxyStyle>

#include <functional>
#include <utility>

namespace vesk::test
{

namespace
{

constexpr char Ribbon[] = "vesk::ProcessCommandUtil::ProcessRibbonBarCommand";
constexpr char StatusBar[] = "vesk::ProcessCommandUtil::ProcessStatusBarCommand";
constexpr wchar_t NoRecord[] =
    L"CREATE_JOURNAL_DATA(IJournalCommandData, JOURNAL_COMMAND_DATA)返回空指针";

CommandParameters SomeParameters()
{
    CommandParameters parameters;
    parameters.Add(L"Clicked", CommandParameterValue(true));
    return parameters;
}

void SendRibbonCommand(const wchar_t* id, QObject* pSender)
{
    ProcessCommandUtil::ProcessRibbonBarCommand(id, SomeParameters(), pSender);
}

void SendStatusBarCommand(const wchar_t* id, QObject* pSender)
{
    ProcessCommandUtil::ProcessStatusBarCommand(id, SomeParameters(), pSender);
}

/// Records the next query about the style of a widget.
class NotingStyle final : public QProxyStyle
{
public:
    int pixelMetric(PixelMetric metric, const QStyleOption* pOption,
                    const QWidget* pWidget) const override
    {
        if (std::exchange(isNoting, false))
            Note("place of the entry");
        return QProxyStyle::pixelMetric(metric, pOption, pWidget);
    }

    mutable bool isNoting = false;
};

/// A menu on the screen whose mouse events are recorded and not delivered to it.
class NotingMenu final : public QMenu
{
public:
    explicit NotingMenu(QStyle* pStyle = nullptr)
    {
        setStyle(pStyle);
        addAction("first");
        pEntry = addAction("second");
        popup(QPoint());
    }

    QAction* pEntry;

protected:
    bool event(QEvent* pEvent) override
    {
        if (pEvent->type() == QEvent::MouseButtonPress)
            Note("press");
        else if (pEvent->type() == QEvent::MouseButtonRelease)
            Note("release");
        else if (pEvent->type() == QEvent::User)
            Note("another event");
        else
            return QMenu::event(pEvent);
        return true;
    }
};

}

/// In which order the host is asked and told, and what is left out if something is missing.
class ProcessCommandOrderTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { QVERIFY(ProcessCommandUtil::IsLastCommandExecuted()); }

    void ribbonCommandIsJournaledRunShownAndFollowedByARefresh();
    void ribbonCommandMayAskForItsIdAlone();
    void ribbonCommandRunsWithoutAView();
    void ribbonCommandShowsNoTextWithoutAnAction();
    void statusBarCommandIsJournaledSentAndFollowedByARefresh();
    void statusBarCommandMayAskForItsIdAlone();
    void unknownRibbonCommandIsNotJournaled();
    void unknownStatusBarCommandIsNotJournaled();
    void unknownCommandNeedsNoRecord_data();
    void unknownCommandNeedsNoRecord();
    void withoutARecordNothingElseHappens_data();
    void withoutARecordNothingElseHappens();
    void withoutAViewManagerNothingIsLookedUp();
    void withoutASenderNothingIsAsked();
    void whatIsPutOffOnlyEndsTheCommand_data();
    void whatIsPutOffOnlyEndsTheCommand();
    void whatIsPutOffWaitsUntilTheCommandHasEnded();
    void waitingClickComesAfterTheRefresh_data();
    void waitingClickComesAfterTheRefresh();
    void waitingClickTakesItsTurnAmongOtherEvents();
    void withoutAViewManagerTheClickStillWaits();
};

void ProcessCommandOrderTest::ribbonCommandIsJournaledRunShownAndFollowedByARefresh()
{
    NotingHost host;
    QObject sender;
    host.onCommand = [&host] { host.pCurrentView = &host.second; };

    SendRibbonCommand(L"asked", &sender);

    QCOMPARE(s_notes,
             QStringList({"find asked", "make JournalCommandData", "record of Command", "id only?",
                          "record with parameters", "journal id and parameters",
                          "process Command in view 1 with parameters", "view 2 shows test action",
                          "refresh"}));
}

void ProcessCommandOrderTest::ribbonCommandMayAskForItsIdAlone()
{
    NotingHost host;
    QObject sender;
    host.commands.command.isIdOnly = true;

    SendRibbonCommand(L"asked", &sender);

    QCOMPARE(s_notes,
             QStringList({"find asked", "make JournalCommandData", "record of Command", "id only?",
                          "journal id", "process Command in view 1 with parameters",
                          "view 1 shows test action", "refresh"}));
}

void ProcessCommandOrderTest::ribbonCommandRunsWithoutAView()
{
    NotingHost host;
    QObject sender;
    host.pCurrentView = nullptr;

    SendRibbonCommand(L"asked", &sender);

    QCOMPARE(s_notes.mid(6), QStringList({"process Command in view 0 with parameters", "refresh"}));
}

void ProcessCommandOrderTest::ribbonCommandShowsNoTextWithoutAnAction()
{
    NotingHost host;
    QObject sender;
    host.hasAction = false;

    SendRibbonCommand(L"asked", &sender);

    QCOMPARE(s_notes.mid(6), QStringList({"process Command in view 1 with parameters", "refresh"}));
}

void ProcessCommandOrderTest::statusBarCommandIsJournaledSentAndFollowedByARefresh()
{
    NotingHost host;
    QObject sender;

    SendStatusBarCommand(L"asked", &sender);

    QCOMPARE(s_notes, QStringList({"find asked", "make JournalCommandData", "record of Command",
                                   "id only?", "record with nothing", "journal id and parameters",
                                   "send Command with nothing", "main window", "refresh"}));
}

void ProcessCommandOrderTest::statusBarCommandMayAskForItsIdAlone()
{
    NotingHost host;
    QObject sender;
    host.commands.command.isIdOnly = true;

    SendStatusBarCommand(L"asked", &sender);

    QCOMPARE(s_notes,
             QStringList({"find asked", "make JournalCommandData", "record of Command", "id only?",
                          "journal id", "send Command with nothing", "main window", "refresh"}));
}

void ProcessCommandOrderTest::unknownRibbonCommandIsNotJournaled()
{
    NotingHost host;
    WarningRecorder warnings;
    QObject sender;

    SendRibbonCommand(L"unknown", &sender);

    EXPECT_WARNING(warnings, L"无法找到字符串对应的注册命令：unknown", Ribbon);
    QCOMPARE(s_notes, QStringList({"find unknown", "view 1 shows test action", "refresh"}));
}

void ProcessCommandOrderTest::unknownStatusBarCommandIsNotJournaled()
{
    NotingHost host;
    WarningRecorder warnings;
    QObject sender;

    SendStatusBarCommand(L"unknown", &sender);

    EXPECT_WARNING(warnings, L"无法找到字符串对应的注册命令：unknown", StatusBar);
    QCOMPARE(s_notes, QStringList({"find unknown", "main window", "refresh"}));
}

void ProcessCommandOrderTest::unknownCommandNeedsNoRecord_data()
{
    QTest::addColumn<bool>("isRibbon");
    QTest::newRow("ribbon") << true;
    QTest::newRow("status bar") << false;
}

void ProcessCommandOrderTest::unknownCommandNeedsNoRecord()
{
    QFETCH(bool, isRibbon);
    NotingHost host;
    WarningRecorder warnings;
    QObject sender;
    NqIJournalFactory::SetImpl(nullptr);

    (isRibbon ? SendRibbonCommand : SendStatusBarCommand)(L"unknown", &sender);

    EXPECT_WARNING(warnings, L"无法找到字符串对应的注册命令：unknown",
                   isRibbon ? Ribbon : StatusBar);
    QVERIFY(warnings.IsEmpty());
    QCOMPARE(s_notes.last(), QString("refresh"));
}

void ProcessCommandOrderTest::withoutARecordNothingElseHappens_data()
{
    unknownCommandNeedsNoRecord_data();
}

void ProcessCommandOrderTest::withoutARecordNothingElseHappens()
{
    QFETCH(bool, isRibbon);
    NotingHost host;
    WarningRecorder warnings;
    QObject sender;
    NqIJournalFactory::SetImpl(nullptr);

    (isRibbon ? SendRibbonCommand : SendStatusBarCommand)(L"asked", &sender);

    EXPECT_WARNING(warnings, NoRecord, isRibbon ? Ribbon : StatusBar);
    QCOMPARE(s_notes, QStringList("find asked"));
    QVERIFY(ProcessCommandUtil::IsLastCommandExecuted());
}

void ProcessCommandOrderTest::withoutAViewManagerNothingIsLookedUp()
{
    NotingHost host;
    WarningRecorder warnings;
    QObject sender;
    NotingViewManager::Set(nullptr);

    SendRibbonCommand(L"unknown", &sender);

    EXPECT_WARNING(warnings, L"pUiViewMgr为空", Ribbon);
    QVERIFY(warnings.IsEmpty());
    QCOMPARE(s_notes, QStringList());
    QVERIFY(ProcessCommandUtil::IsLastCommandExecuted());
}

void ProcessCommandOrderTest::withoutASenderNothingIsAsked()
{
    NotingHost host;
    WarningRecorder warnings;
    NotingViewManager::Set(nullptr);

    SendRibbonCommand(L"unknown", nullptr);

    EXPECT_WARNING(warnings, L"pSender为空", Ribbon);
    QVERIFY(warnings.IsEmpty());
    QCOMPARE(s_notes, QStringList());
}

void ProcessCommandOrderTest::whatIsPutOffOnlyEndsTheCommand_data()
{
    unknownCommandNeedsNoRecord_data();
}

void ProcessCommandOrderTest::whatIsPutOffOnlyEndsTheCommand()
{
    QFETCH(bool, isRibbon);
    NotingHost host;
    WarningRecorder warnings;
    QObject sender;
    QAction action;
    bool isExecuted = false;
    host.onCommand = [&] {
        s_notes.clear();
        (isRibbon ? SendRibbonCommand : SendStatusBarCommand)(L"unknown", &action);
        isExecuted = ProcessCommandUtil::IsLastCommandExecuted();
    };

    SendStatusBarCommand(L"asked", &sender);

    QVERIFY(warnings.IsEmpty());
    QCOMPARE(s_notes, QStringList({"end", "idle: main window", "idle: refresh"}));
    QVERIFY(isExecuted);
}

/// Something that ends together with the command, and runs another one from a plain sender, finds
/// nothing to click again yet.
void ProcessCommandOrderTest::whatIsPutOffWaitsUntilTheCommandHasEnded()
{
    NotingHost host;
    NotingMenu menu;
    QObject sender;
    host.onReset = [&] {
        SendStatusBarCommand(L"asked", &sender);
        QCoreApplication::sendPostedEvents(&menu);
        s_notes << "ended";
    };
    host.onCommand = [&] { SendStatusBarCommand(L"asked", menu.pEntry); };

    SendStatusBarCommand(L"asked", &sender);
    QCoreApplication::sendPostedEvents(&menu);

    const int ended = s_notes.indexOf("ended");
    QVERIFY(ended > 0);
    QVERIFY(s_notes.indexOf("idle: press") > ended);
    QCOMPARE(s_notes.filter("press").size(), 1);
}

void ProcessCommandOrderTest::waitingClickComesAfterTheRefresh_data()
{
    unknownCommandNeedsNoRecord_data();
}

/// The click is posted while the command is still running, and after the refresh.
void ProcessCommandOrderTest::waitingClickComesAfterTheRefresh()
{
    QFETCH(bool, isRibbon);
    NotingHost host;
    NotingStyle style;
    NotingMenu menu(&style);
    QObject sender;
    host.hasAction = false;
    host.onCommand = [&] {
        SendRibbonCommand(L"asked", menu.pEntry);
        SendRibbonCommand(L"asked", &sender);
    };
    host.onRefresh = [&menu] { QCoreApplication::sendPostedEvents(&menu); };
    // A hidden menu computes the geometry of its entries when asked for one.
    menu.hide();
    menu.addAction("third");
    style.isNoting = true;

    (isRibbon ? SendRibbonCommand : SendStatusBarCommand)(L"asked", &sender);
    QCoreApplication::sendPostedEvents(&menu);

    const int end = s_notes.indexOf("end");
    QCOMPARE(s_notes.mid(end + 7, 3), QStringList({"process Command in view 1 with parameters",
                                                   "refresh", "place of the entry"}));
    QVERIFY(!s_notes.mid(0, end + 10).join(' ').contains("press"));
    QCOMPARE(s_notes.filter("press").size(), 1);
    QCOMPARE(s_notes.filter("release").size(), 1);
}

void ProcessCommandOrderTest::waitingClickTakesItsTurnAmongOtherEvents()
{
    NotingHost host;
    NotingMenu menu;
    QObject sender;
    host.onCommand = [&] { SendStatusBarCommand(L"asked", menu.pEntry); };
    QCoreApplication::postEvent(&menu, new QEvent(QEvent::User));

    SendStatusBarCommand(L"asked", &sender);
    QCoreApplication::postEvent(&menu, new QEvent(QEvent::User));
    s_notes.clear();
    QCoreApplication::sendPostedEvents(&menu);

    QCOMPARE(s_notes, QStringList({"idle: another event", "idle: press", "idle: release",
                                   "idle: another event"}));
}

void ProcessCommandOrderTest::withoutAViewManagerTheClickStillWaits()
{
    NotingHost host;
    WarningRecorder warnings;
    NotingMenu menu;
    QObject sender;
    host.onCommand = [&] {
        SendStatusBarCommand(L"asked", menu.pEntry);
        NotingViewManager::Set(nullptr);
        SendRibbonCommand(L"asked", &sender);
        QCoreApplication::sendPostedEvents(&menu);
        s_notes << "tried";
    };

    SendStatusBarCommand(L"asked", &sender);
    QCoreApplication::sendPostedEvents(&menu);

    EXPECT_WARNING(warnings, L"pUiViewMgr为空", Ribbon);
    QVERIFY(s_notes.indexOf("idle: press") > s_notes.indexOf("tried"));
}

}

VESK_TESTS(vesk::test::ProcessCommandOrderTest);
#include "ProcessCommandOrderTest.moc"
