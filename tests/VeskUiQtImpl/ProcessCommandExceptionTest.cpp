#include "CommandFixture.h"

#include "Support/TestEventLoop.h"

#include <QAction>
#include <QMenu>

#include <stdexcept>

namespace vesk::test
{

namespace
{

/// Chooses the entry of a menu as a user does.
void Click(QMenu& menu, QAction& action)
{
    QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(&action).center());
}

/// A menu on the screen with one entry, which sends "Inner" from its own sender.
struct MenuFixture : CommandFixture
{
    MenuFixture()
    {
        host.AddCommand(L"Inner", [this](const CommandParameters&) { ++innerCount; });
        pAction = menu.addAction(QStringLiteral("inner"));
        QObject::connect(pAction, &QAction::triggered, pAction, [this] {
            ProcessCommandUtil::ProcessStatusBarCommand(L"Inner", {}, pAction);
        });
        menu.popup(QPoint());
    }

    QMenu menu;
    QAction* pAction;
    int innerCount = 0;
};

}

/// Commands that throw.
class ProcessCommandExceptionTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { QVERIFY(ProcessCommandUtil::IsLastCommandExecuted()); }

    void isExecutedAfterAnException_data() { AddOperations(); }
    void isExecutedAfterAnException();
    void theControlsAreRefreshedAfterAnException_data() { AddOperations(); }
    void theControlsAreRefreshedAfterAnException();
    void theViewTextIsShownAfterAnException();
    void theNextMenuClickIsNotSwallowed_data() { AddOperations(); }
    void theNextMenuClickIsNotSwallowed();
    void whatWasChosenMeanwhileIsClickedAfterAnException_data() { AddOperations(); }
    void whatWasChosenMeanwhileIsClickedAfterAnException();
    void aClickThatEndsAnActionWhichThrowsIsNotLost();
    void aCommandThatWaitsRunsAfterAnException();
};

void ProcessCommandExceptionTest::isExecutedAfterAnException()
{
    QFETCH(Operation, operation);
    CommandFixture f;
    f.onCommand = [] { throw std::runtime_error("command"); };

    QVERIFY_EXCEPTION_THROWN(operation(L"Plain", {}, &f.sender), std::runtime_error);

    QVERIFY(!f.wasExecuted);
    QVERIFY(ProcessCommandUtil::IsLastCommandExecuted());
    QCOMPARE(f.host.journal.GetCommands().size(), std::size_t(1));
}

void ProcessCommandExceptionTest::theControlsAreRefreshedAfterAnException()
{
    QFETCH(Operation, operation);
    CommandFixture f;
    f.onCommand = [] { throw std::runtime_error("command"); };

    QVERIFY_EXCEPTION_THROWN(operation(L"Plain", {}, &f.sender), std::runtime_error);

    QCOMPARE(f.host.application.GetStatusUpdateCount(), 1);
}

void ProcessCommandExceptionTest::theViewTextIsShownAfterAnException()
{
    CommandFixture f;
    f.host.BeginAction();
    const std::size_t count = f.host.view.GetTexts().size();
    f.onCommand = [] { throw std::runtime_error("command"); };

    QVERIFY_EXCEPTION_THROWN(ProcessCommandUtil::ProcessRibbonBarCommand(L"Plain", {}, &f.sender),
                             std::runtime_error);

    QCOMPARE(f.host.view.GetTexts().size(), count + 1);
}

void ProcessCommandExceptionTest::theNextMenuClickIsNotSwallowed()
{
    QFETCH(Operation, operation);
    MenuFixture f;
    f.onCommand = [] { throw std::runtime_error("command"); };
    QVERIFY_EXCEPTION_THROWN(operation(L"Plain", {}, &f.sender), std::runtime_error);

    Click(f.menu, *f.pAction);

    QCOMPARE(f.innerCount, 1);
}

void ProcessCommandExceptionTest::whatWasChosenMeanwhileIsClickedAfterAnException()
{
    QFETCH(Operation, operation);
    MenuFixture f;
    f.onCommand = [&f] {
        f.pAction->trigger();
        throw std::runtime_error("command");
    };

    QVERIFY_EXCEPTION_THROWN(operation(L"Plain", {}, &f.sender), std::runtime_error);

    QCOMPARE(f.innerCount, 0);
    QTRY_COMPARE(f.innerCount, 1);
}

/// The action has no event loop, so the click itself ends it.
void ProcessCommandExceptionTest::aClickThatEndsAnActionWhichThrowsIsNotLost()
{
    struct ThrowingObserver : IActionObserver
    {
        ThrowingObserver() { ActionManager::AddObserver(this); }
        ~ThrowingObserver() override { ActionManager::RemoveObserver(this); }
        void OnActionChanged() override { throw std::runtime_error("observer"); }
    };
    MenuFixture f;
    f.host.BeginAction();
    f.onCommand = [&f] {
        const ThrowingObserver observer;
        QVERIFY_EXCEPTION_THROWN(
            ProcessCommandUtil::ProcessStatusBarCommand(L"Inner", {}, f.pAction),
            std::runtime_error);
    };

    ProcessCommandUtil::ProcessRibbonBarCommand(L"Plain", {}, &f.sender);

    QTRY_COMPARE(f.innerCount, 1);
}

void ProcessCommandExceptionTest::aCommandThatWaitsRunsAfterAnException()
{
    class Throwing final : public IActionEventLoop
    {
    public:
        explicit Throwing(std::function<void()> act) : m_act(std::move(act))
        {
            ActionManager::SetEventLoop(this);
        }
        ~Throwing() override { ActionManager::SetEventLoop(nullptr); }
        void Run() override
        {
            m_act();
            throw std::runtime_error("event");
        }
        void Quit() override {}

    private:
        std::function<void()> m_act;
    };
    MenuFixture f;
    f.host.AddInteractiveCommand(L"Line");
    const Throwing loop(
        [&f] { ProcessCommandUtil::ProcessStatusBarCommand(L"Inner", {}, &f.sender); });

    QVERIFY_EXCEPTION_THROWN(ProcessCommandUtil::ProcessRibbonBarCommand(L"Line", {}, &f.sender),
                             std::runtime_error);

    QCOMPARE(f.innerCount, 0);
    QTRY_COMPARE(f.innerCount, 1);
}

}

VESK_TESTS(vesk::test::ProcessCommandExceptionTest);
#include "ProcessCommandExceptionTest.moc"
