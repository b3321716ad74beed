#include "VeskUiQtImpl/ProcessCommandUtil.h"

#include "Journal/NqIJournalFactory.h"
#include "Support/HostFixture.h"
#include "Support/TestEventLoop.h"
#include "Support/TestValues.h"

#include "HostUi/QtVersions.h"
#include "Qtitan/RibbonButtonControl.h"

#include <QAction>
#include <QMenu>
#include <QMouseEvent>
#include <QToolButton>

namespace vesk::test
{

/// Records the mouse events of a widget without delivering them.
class MouseNotes final : public QObject
{
public:
    struct Note
    {
        QEvent::Type type;
        QPointF position;
        Qt::MouseButton button;
        Qt::MouseButtons buttons;
        Qt::KeyboardModifiers modifiers;
    };

    explicit MouseNotes(QWidget* pWidget) { pWidget->installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* pEvent) override
    {
        const auto* pMouse = dynamic_cast<QMouseEvent*>(pEvent);
        if (pMouse == nullptr)
            return false;
        notes.push_back({pMouse->type(), PositionOf(*pMouse), pMouse->button(), pMouse->buttons(),
                         pMouse->modifiers()});
        return true;
    }

    std::vector<Note> notes;
};

/// Records the warnings Qt prints during its lifetime.
class Complaints
{
public:
    Complaints() : m_handlerBefore(qInstallMessageHandler(&Complaints::Note)) { s_texts.clear(); }
    ~Complaints() { qInstallMessageHandler(m_handlerBefore); }
    Complaints(const Complaints&) = delete;
    Complaints& operator=(const Complaints&) = delete;

    QStringList GetTexts() const { return s_texts; }

private:
    static void Note(QtMsgType, const QMessageLogContext&, const QString& text) { s_texts += text; }

    inline static QStringList s_texts;
    QtMessageHandler m_handlerBefore;
};

/// A host with the plain commands "Outer", which does what the test says, and "Inner".
struct ReplayFixture
{
    ReplayFixture()
    {
        host.AddCommand(L"Outer", [this](const CommandParameters&) {
            if (onOuter)
                onOuter();
        });
        host.AddCommand(L"Inner", [this](const CommandParameters&) { ++innerCount; });
    }

    /// Runs "Outer" and chooses the action while it runs.
    void ChooseWhileACommandRuns(QAction* pAction)
    {
        onOuter = [pAction] { ProcessCommandUtil::ProcessRibbonBarCommand(L"Inner", {}, pAction); };
        ProcessCommandUtil::ProcessRibbonBarCommand(L"Outer", {}, &sender);
        onOuter = nullptr;
    }

    HostFixture host;
    QObject sender;
    std::function<void()> onOuter;
    int innerCount = 0;
};

class ProcessCommandReplayTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { QVERIFY(ProcessCommandUtil::IsLastCommandExecuted()); }

    void chosenActionIsPutOffAndNothingIsJournaled_data();
    void chosenActionIsPutOffAndNothingIsJournaled();
    void chosenActionEndsTheRunningAction();
    void menuActionIsPressedAndReleasedInItsMiddle();
    void ribbonActionIsPressedAndReleasedOnItsButton();
    void ribbonControlWithoutAButtonGetsNothing();
    void actionOfAnotherParentGetsNothing();
    void actionWithoutParentGetsNothing();
    void actionThatDiedMeanwhileGetsNothing();
    void lastChosenActionIsReplayed();
    void isReplayedOnceOnly();
    void isReplayedAfterAnUnknownCommandToo();
    void isReplayedAfterAStatusBarCommandToo();
    void commandThatCannotBeJournaledDoesNotReplay();
    void menuClickDuringAnInteractiveCommandIsRunAfterIt();
};

void ProcessCommandReplayTest::chosenActionIsPutOffAndNothingIsJournaled_data()
{
    QTest::addColumn<bool>("isRibbon");
    QTest::newRow("ribbon") << true;
    QTest::newRow("status bar") << false;
}

void ProcessCommandReplayTest::chosenActionIsPutOffAndNothingIsJournaled()
{
    QFETCH(bool, isRibbon);
    ReplayFixture f;
    QAction action;
    bool isExecuted = false;
    f.onOuter = [&] {
        if (isRibbon)
            ProcessCommandUtil::ProcessRibbonBarCommand(L"Inner", {}, &action);
        else
            ProcessCommandUtil::ProcessStatusBarCommand(L"Inner", {}, &action);
        isExecuted = ProcessCommandUtil::IsLastCommandExecuted();
    };

    ProcessCommandUtil::ProcessRibbonBarCommand(L"Outer", {}, &f.sender);

    QCOMPARE(f.innerCount, 0);
    QCOMPARE(f.host.journal.GetCommands().size(), std::size_t(1));
    QCOMPARE(f.host.application.GetStatusUpdateCount(), 1);
    QVERIFY(isExecuted);
}

void ProcessCommandReplayTest::chosenActionEndsTheRunningAction()
{
    ReplayFixture f;
    f.host.BeginAction();
    QAction action;
    int endCount = 0;
    f.onOuter = [&] {
        ProcessCommandUtil::ProcessRibbonBarCommand(L"Inner", {}, &action);
        endCount = f.host.actionLog.endCount;
    };

    ProcessCommandUtil::ProcessRibbonBarCommand(L"Outer", {}, &f.sender);

    QCOMPARE(endCount, 1);
}

void ProcessCommandReplayTest::menuActionIsPressedAndReleasedInItsMiddle()
{
    ReplayFixture f;
    QMenu menu;
    menu.addAction("first");
    QAction* pAction = menu.addAction("second");
    pAction->setParent(&menu);
    menu.popup(QPoint(0, 0));
    MouseNotes mouse(&menu);

    f.ChooseWhileACommandRuns(pAction);
    QVERIFY(mouse.notes.empty());
    QCoreApplication::sendPostedEvents(&menu);

    QCOMPARE(mouse.notes.size(), std::size_t(2));
    QCOMPARE(mouse.notes[0].type, QEvent::MouseButtonPress);
    QCOMPARE(mouse.notes[1].type, QEvent::MouseButtonRelease);
    const QPointF centre = menu.actionGeometry(pAction).center();
    QCOMPARE(mouse.notes[0].position, centre);
    QCOMPARE(mouse.notes[1].position, centre);
    QCOMPARE(mouse.notes[0].button, Qt::LeftButton);
    QCOMPARE(mouse.notes[1].button, Qt::LeftButton);
    QCOMPARE(mouse.notes[0].buttons, Qt::MouseButtons(Qt::LeftButton));
    QCOMPARE(mouse.notes[1].buttons, Qt::MouseButtons(Qt::LeftButton));
    QCOMPARE(mouse.notes[1].modifiers, Qt::KeyboardModifiers(Qt::NoModifier));
}

void ProcessCommandReplayTest::ribbonActionIsPressedAndReleasedOnItsButton()
{
    ReplayFixture f;
    Qtitan::RibbonButtonControl control;
    auto* pButton = new QToolButton;
    control.setWidget(pButton);
    QAction action(&control);
    MouseNotes mouse(pButton);

    f.ChooseWhileACommandRuns(&action);
    QCoreApplication::sendPostedEvents(pButton);

    QCOMPARE(mouse.notes.size(), std::size_t(2));
    QCOMPARE(mouse.notes[0].type, QEvent::MouseButtonPress);
    QCOMPARE(mouse.notes[1].type, QEvent::MouseButtonRelease);
    QCOMPARE(mouse.notes[0].position, QPointF(1, 1));
    QCOMPARE(mouse.notes[1].position, QPointF(1, 1));
}

void ProcessCommandReplayTest::ribbonControlWithoutAButtonGetsNothing()
{
    ReplayFixture f;
    Qtitan::RibbonButtonControl control;
    QAction action(&control);
    MouseNotes mouse(&control);

    f.ChooseWhileACommandRuns(&action);
    QCoreApplication::sendPostedEvents(&control);

    QVERIFY(mouse.notes.empty());
}

void ProcessCommandReplayTest::actionOfAnotherParentGetsNothing()
{
    ReplayFixture f;
    QToolButton button;
    QAction action(&button);
    MouseNotes mouse(&button);

    f.ChooseWhileACommandRuns(&action);
    QCoreApplication::sendPostedEvents(&button);

    QVERIFY(mouse.notes.empty());
}

void ProcessCommandReplayTest::actionWithoutParentGetsNothing()
{
    ReplayFixture f;
    QAction action;
    const Complaints complaints;

    f.ChooseWhileACommandRuns(&action);

    QCOMPARE(f.host.application.GetStatusUpdateCount(), 1);
    QCOMPARE(complaints.GetTexts(), QStringList());
}

void ProcessCommandReplayTest::actionThatDiedMeanwhileGetsNothing()
{
    ReplayFixture f;
    QMenu menu;
    menu.popup(QPoint(0, 0));
    MouseNotes mouse(&menu);
    auto pAction = std::make_unique<QAction>(&menu);
    f.onOuter = [&] {
        ProcessCommandUtil::ProcessRibbonBarCommand(L"Inner", {}, pAction.get());
        pAction.reset();
    };

    ProcessCommandUtil::ProcessRibbonBarCommand(L"Outer", {}, &f.sender);
    QCoreApplication::sendPostedEvents(&menu);

    QVERIFY(mouse.notes.empty());
}

void ProcessCommandReplayTest::lastChosenActionIsReplayed()
{
    ReplayFixture f;
    QMenu menu;
    QAction* pFirst = menu.addAction("first");
    QAction* pLast = menu.addAction("last");
    menu.popup(QPoint(0, 0));
    MouseNotes mouse(&menu);
    bool isInner = false;
    f.onOuter = [&] {
        ProcessCommandUtil::ProcessRibbonBarCommand(L"Inner", {}, isInner ? pLast : pFirst);
        if (!std::exchange(isInner, true))
            ProcessCommandUtil::ProcessRibbonBarCommand(L"Outer", {}, &f.sender);
    };

    ProcessCommandUtil::ProcessRibbonBarCommand(L"Outer", {}, &f.sender);
    QCoreApplication::sendPostedEvents(&menu);

    QCOMPARE(mouse.notes.size(), std::size_t(2));
    QCOMPARE(mouse.notes[0].position, QPointF(menu.actionGeometry(pLast).center()));
}

void ProcessCommandReplayTest::isReplayedOnceOnly()
{
    ReplayFixture f;
    QMenu menu;
    QAction* pAction = menu.addAction("item");
    menu.popup(QPoint(0, 0));
    MouseNotes mouse(&menu);
    f.ChooseWhileACommandRuns(pAction);

    ProcessCommandUtil::ProcessRibbonBarCommand(L"Inner", {}, &f.sender);
    QCoreApplication::sendPostedEvents(&menu);

    QCOMPARE(mouse.notes.size(), std::size_t(2));
}

void ProcessCommandReplayTest::isReplayedAfterAnUnknownCommandToo()
{
    ReplayFixture f;
    QMenu menu;
    QAction* pAction = menu.addAction("item");
    menu.popup(QPoint(0, 0));
    MouseNotes mouse(&menu);
    std::size_t noteCountInside = 1;
    f.onOuter = [&] {
        ProcessCommandUtil::ProcessRibbonBarCommand(L"Inner", {}, pAction);
        ProcessCommandUtil::ProcessRibbonBarCommand(L"No.Such", {}, &f.sender);
        QCoreApplication::sendPostedEvents(&menu);
        noteCountInside = mouse.notes.size();
    };

    ProcessCommandUtil::ProcessRibbonBarCommand(L"Outer", {}, &f.sender);

    QCOMPARE(f.host.warnings.TakeAny().message,
             std::wstring(L"无法找到字符串对应的注册命令：No.Such"));
    QCOMPARE(noteCountInside, std::size_t(2));
}

void ProcessCommandReplayTest::isReplayedAfterAStatusBarCommandToo()
{
    ReplayFixture f;
    QMenu menu;
    QAction* pAction = menu.addAction("item");
    menu.popup(QPoint(0, 0));
    MouseNotes mouse(&menu);
    f.onOuter = [&] { ProcessCommandUtil::ProcessStatusBarCommand(L"Inner", {}, pAction); };

    ProcessCommandUtil::ProcessStatusBarCommand(L"Outer", {}, &f.sender);
    QCoreApplication::sendPostedEvents(&menu);

    QCOMPARE(mouse.notes.size(), std::size_t(2));
    QCOMPARE(f.innerCount, 0);
}

void ProcessCommandReplayTest::commandThatCannotBeJournaledDoesNotReplay()
{
    ReplayFixture f;
    QMenu menu;
    QAction* pAction = menu.addAction("item");
    menu.popup(QPoint(0, 0));
    MouseNotes mouse(&menu);
    std::size_t noteCountInside = 1;
    f.onOuter = [&] {
        ProcessCommandUtil::ProcessRibbonBarCommand(L"Inner", {}, pAction);
        NqIJournalFactory* pFactory = NqIJournalFactory::GetImpl();
        NqIJournalFactory::SetImpl(nullptr);
        ProcessCommandUtil::ProcessRibbonBarCommand(L"Inner", {}, &f.sender);
        NqIJournalFactory::SetImpl(pFactory);
        QCoreApplication::sendPostedEvents(&menu);
        noteCountInside = mouse.notes.size();
    };

    ProcessCommandUtil::ProcessRibbonBarCommand(L"Outer", {}, &f.sender);

    QVERIFY(!f.host.warnings.TakeAny().message.empty());
    QCOMPARE(noteCountInside, std::size_t(0));
}

void ProcessCommandReplayTest::menuClickDuringAnInteractiveCommandIsRunAfterIt()
{
    ReplayFixture f;
    TestEventLoop loop;
    f.host.AddInteractiveCommand(L"Interactive");
    QMenu menu;
    QAction* pAction = menu.addAction("item");
    menu.popup(QPoint(0, 0));
    bool wasLoopRunning = true;
    connect(pAction, &QAction::triggered, this, [&] {
        wasLoopRunning = loop.IsRunning();
        ProcessCommandUtil::ProcessRibbonBarCommand(L"Inner", {}, pAction);
    });
    loop.SetOnRun([&] { pAction->trigger(); });

    ProcessCommandUtil::ProcessRibbonBarCommand(L"Interactive", {}, &f.sender);

    QVERIFY(wasLoopRunning);
    QCOMPARE(f.host.actionLog.endCount, 1);
    QCOMPARE(f.innerCount, 0);
    QCOMPARE(f.host.journal.GetCommands().size(), std::size_t(1));
    QTRY_COMPARE(f.innerCount, 1);
    QVERIFY(!wasLoopRunning);
    QCOMPARE(f.host.journal.GetCommands().size(), std::size_t(2));
    QCOMPARE(f.host.journal.GetCommands()[1].commandId, std::wstring(L"Inner"));
}

}

VESK_TESTS(vesk::test::ProcessCommandReplayTest);
#include "ProcessCommandReplayTest.moc"
