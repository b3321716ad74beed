#include "Host/Command/ActionFixture.h"

#include "Command/IActionManager.h"
#include "Support/TestValues.h"

namespace vesk
{

using Input = std::function<void(ActionFixture&)>;

}

Q_DECLARE_METATYPE(vesk::Input)

namespace vesk
{

/// Actions without an event loop, as in a replay.
class ActionWithoutLoopTest : public QObject
{
    Q_OBJECT

private slots:
    void aCommandBeginsItsActionAndReturns();
    void theNextInteractiveCommandEndsTheAction();
    void aCommandOfAMenuEndsTheActionFirst();
    void resetEndsTheActionAtOnce();
    void anEndAskedForInAnOperationComesAfterIt_data();
    void anEndAskedForInAnOperationComesAfterIt();
    void aCommandChosenInAnOperationRunsAfterIt();
    void anActionThatIsFinishedAtItsBeginEndsAtOnce();
    void theViewKeepsItsKeyboard();
};

void ActionWithoutLoopTest::aCommandBeginsItsActionAndReturns()
{
    ActionFixture f;
    ActionManager::SetEventLoop(nullptr);
    f.AddInteractive("Line");

    f.Choose("Line");
    f.Click();

    QCOMPARE(f.log, (Log{"Line.begin", "Line.click"}));
    QCOMPARE(ActionManager::GetRunningCommandId(), std::wstring(L"Line"));
}

void ActionWithoutLoopTest::theNextInteractiveCommandEndsTheAction()
{
    ActionFixture f;
    ActionManager::SetEventLoop(nullptr);
    f.AddInteractive("Line");
    f.AddInteractive("Erase");

    f.Choose("Line");
    f.Choose("Erase");

    QCOMPARE(f.log, (Log{"Line.begin", "Line.end", "Line.delete", "Erase.begin"}));
}

void ActionWithoutLoopTest::aCommandOfAMenuEndsTheActionFirst()
{
    ActionFixture f;
    ActionManager::SetEventLoop(nullptr);
    f.AddInteractive("Line");
    f.AddPlain("Undo");

    f.Choose("Line");
    f.ChooseInMenu("Undo");

    QCOMPARE(f.log, (Log{"Line.begin", "Line.end", "Line.delete", "Undo"}));
}

void ActionWithoutLoopTest::resetEndsTheActionAtOnce()
{
    ActionFixture f;
    ActionManager::SetEventLoop(nullptr);
    f.AddInteractive("Line");
    f.Choose("Line");

    ActionManager::Reset();

    QCOMPARE(f.log, (Log{"Line.begin", "Line.end", "Line.delete"}));
    QVERIFY(IActionManager::CurrentAction() == nullptr);
}

void ActionWithoutLoopTest::anEndAskedForInAnOperationComesAfterIt_data()
{
    QTest::addColumn<Input>("script");
    QTest::addColumn<Input>("input");
    QTest::addColumn<QString>("last");

    const auto reset = [](auto&&...) { ActionManager::Reset(); };
    QTest::newRow("begin") << Input(
                                  [reset](ActionFixture& f) { f.scripts["Line"].onBegin = reset; })
                           << Input([](ActionFixture&) {}) << "Line.begin done";
    QTest::newRow("click") << Input(
                                  [reset](ActionFixture& f) { f.scripts["Line"].onClick = reset; })
                           << Input(&ActionFixture::Click) << "Line.click done";
    QTest::newRow("move") << Input([reset](ActionFixture& f) {
        f.scripts["Line"].onMouseMove = reset;
    }) << Input(&ActionFixture::MoveMouse)
                          << "Line.move done";
    QTest::newRow("typed value") << Input([reset](ActionFixture& f) {
        f.scripts["Line"].onViewInput = [reset, &f](const ActionViewInput&) {
            reset();
            f.log.push_back("Line.input done");
        };
    }) << Input(&ActionFixture::TypeValue)
                                 << "Line.input done";
    QTest::newRow("escape") << Input([](ActionFixture&) {}) << Input(&ActionFixture::PressEscape)
                            << "Line.escape";
}

void ActionWithoutLoopTest::anEndAskedForInAnOperationComesAfterIt()
{
    QFETCH(Input, script);
    QFETCH(Input, input);
    QFETCH(QString, last);
    ActionFixture f;
    ActionManager::SetEventLoop(nullptr);
    f.AddInteractive("Line");
    script(f);

    f.Choose("Line");
    input(f);

    QVERIFY(f.Has(last.toStdString()));
    QVERIFY(f.At(last.toStdString()) < f.At("Line.end"));
    QVERIFY(f.Has("Line.delete"));
}

void ActionWithoutLoopTest::aCommandChosenInAnOperationRunsAfterIt()
{
    ActionFixture f;
    ActionManager::SetEventLoop(nullptr);
    f.AddInteractive("Line");
    f.AddInteractive("Erase");
    f.scripts["Line"].onClick = [&f] { f.Choose("Erase"); };

    f.Choose("Line");
    f.Click();

    QCOMPARE(f.log, (Log{"Line.begin", "Line.click", "Line.click done", "Line.end", "Line.delete",
                         "Erase.begin"}));
}

void ActionWithoutLoopTest::anActionThatIsFinishedAtItsBeginEndsAtOnce()
{
    ActionFixture f;
    ActionManager::SetEventLoop(nullptr);
    f.AddInteractive("Line");
    f.scripts["Line"].isFinished = true;

    f.Choose("Line");

    QCOMPARE(f.log, (Log{"Line.begin", "Line.end", "Line.delete"}));
}

void ActionWithoutLoopTest::theViewKeepsItsKeyboard()
{
    ActionFixture f;
    ActionManager::SetEventLoop(nullptr);
    f.AddInteractive("Line");

    f.Choose("Line");

    QCOMPARE(f.view.GetActivationCount(), 0);
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::ActionWithoutLoopTest);
#include "ActionWithoutLoopTest.moc"
