#include "Host/Command/ActionFixture.h"

#include "Command/IActionManager.h"
#include "Support/TestValues.h"

namespace vesk
{

/// Commands that run as actions in the event loop.
class ActionLoopTest : public QObject
{
    Q_OBJECT

private slots:
    void anActionRunsInTheLoopFromBeginToEnd();
    void theRunningActionIsKnown();
    void anApplicationThatEndsEndsTheAction();
    void aPlainCommandRunsBesideTheAction();
    void theNextInteractiveCommandBeginsWhenTheActionIsGone();
    void theSameCommandStartsAnew();
    void manySwitchesNeverNestTheLoop();
    void aCommandOfAMenuEndsTheActionFirst();
    void aCommandOfAMenuRunsAtOnceWhenNoneRuns();
    void waitingCommandsRunInOrder();
    void aCommandBehindWhichAnotherWaitsEndsWithoutALoop();
    void aCommandChosenWhileAnActionEndsRunsAfterIt();
    void aCommandChosenWhileAnActionIsMadeRunsAfterIt();
    void resetKeepsTheCommandsThatWait();
    void resetWithoutAnActionDoesNothing();
    void anInteractiveCommandWithoutAnActionIsDone();
    void noCommandAndAnUnknownIdDoNothing();
};

void ActionLoopTest::anActionRunsInTheLoopFromBeginToEnd()
{
    ActionFixture f;
    f.AddInteractive("Line");
    f.loop.Post([&f] { f.Click(); });
    f.loop.Post([] { ActionManager::Reset(); });

    f.Choose("Line");

    QCOMPARE(f.log, (Log{"Line.begin", "Line.click", "Line.end", "Line.delete"}));
    QCOMPARE(f.loop.GetRunCount(), 1);
}

void ActionLoopTest::theRunningActionIsKnown()
{
    ActionFixture f;
    f.AddInteractive("Line");
    std::wstring running;
    const IAction* pRunning = nullptr;
    f.loop.Post([&] {
        running = ActionManager::GetRunningCommandId();
        pRunning = IActionManager::CurrentAction();
    });

    f.Choose("Line");

    QCOMPARE(running, std::wstring(L"Line"));
    QVERIFY(pRunning != nullptr);
    QVERIFY(ActionManager::GetRunningCommandId().empty());
    QVERIFY(IActionManager::CurrentAction() == nullptr);
}

void ActionLoopTest::anApplicationThatEndsEndsTheAction()
{
    ActionFixture f;
    f.AddInteractive("Line");

    f.Choose("Line");

    QCOMPARE(f.log, (Log{"Line.begin", "Line.end", "Line.delete"}));
}

void ActionLoopTest::aPlainCommandRunsBesideTheAction()
{
    ActionFixture f;
    f.AddInteractive("Line");
    f.AddPlain("ZoomAll");
    f.loop.Post([&f] { f.Choose("ZoomAll"); });
    f.loop.Post([&f] { f.Click(); });

    f.Choose("Line");

    QCOMPARE(f.log, (Log{"Line.begin", "ZoomAll", "Line.click", "Line.end", "Line.delete"}));
}

void ActionLoopTest::theNextInteractiveCommandBeginsWhenTheActionIsGone()
{
    ActionFixture f;
    f.AddInteractive("Line");
    f.AddInteractive("Erase");
    f.loop.Post([&f] { f.Choose("Erase"); });
    f.loop.Post([&f] { f.Click(); });

    f.Choose("Line");

    QCOMPARE(f.log, (Log{"Line.begin", "Line.end", "Line.delete", "Erase.begin", "Erase.click",
                         "Erase.end", "Erase.delete"}));
    QCOMPARE(f.loop.GetGreatestDepth(), 1);
}

void ActionLoopTest::theSameCommandStartsAnew()
{
    ActionFixture f;
    f.AddInteractive("Line");
    f.loop.Post([&f] { f.Choose("Line"); });

    f.Choose("Line");

    QCOMPARE(f.log, (Log{"Line.begin", "Line.end", "Line.delete", "Line.begin", "Line.end",
                         "Line.delete"}));
}

void ActionLoopTest::manySwitchesNeverNestTheLoop()
{
    constexpr int SwitchCount = 2000;
    ActionFixture f;
    f.AddInteractive("Line");
    f.AddInteractive("Erase");
    for (int i = 0; i < SwitchCount; ++i)
        f.loop.Post([&f, i] { f.Choose(i % 2 == 0 ? "Erase" : "Line"); });

    f.Choose("Line");

    QCOMPARE(f.loop.GetRunCount(), SwitchCount + 1);
    QCOMPARE(f.loop.GetGreatestDepth(), 1);
}

void ActionLoopTest::aCommandOfAMenuEndsTheActionFirst()
{
    ActionFixture f;
    f.AddInteractive("Line");
    f.AddPlain("Undo");
    f.loop.Post([&f] { f.ChooseInMenu("Undo"); });

    f.Choose("Line");

    QCOMPARE(f.log, (Log{"Line.begin", "Line.end", "Line.delete", "Undo"}));
}

void ActionLoopTest::aCommandOfAMenuRunsAtOnceWhenNoneRuns()
{
    ActionFixture f;
    f.AddInteractive("Line");
    f.AddPlain("Undo");

    f.ChooseInMenu("Undo");
    f.ChooseInMenu("Line");

    QCOMPARE(f.log, (Log{"Undo", "Line.begin", "Line.end", "Line.delete"}));
    QCOMPARE(f.loop.GetRunCount(), 1);
}

void ActionLoopTest::waitingCommandsRunInOrder()
{
    ActionFixture f;
    f.AddInteractive("Line");
    f.AddPlain("Undo");
    f.AddPlain("New");
    f.loop.Post([&f] {
        f.ChooseInMenu("Undo");
        f.ChooseInMenu("New");
        f.Choose("Line");
    });

    f.Choose("Line");

    QCOMPARE(f.log, (Log{"Line.begin", "Line.end", "Line.delete", "Undo", "New", "Line.begin",
                         "Line.end", "Line.delete"}));
}

void ActionLoopTest::aCommandBehindWhichAnotherWaitsEndsWithoutALoop()
{
    ActionFixture f;
    f.AddInteractive("Line");
    f.AddInteractive("Erase");
    f.AddInteractive("Arc");
    f.loop.Post([&f] {
        f.Choose("Erase");
        f.Choose("Arc");
    });

    f.Choose("Line");

    QCOMPARE(f.log, (Log{"Line.begin", "Line.end", "Line.delete", "Erase.begin", "Erase.end",
                         "Erase.delete", "Arc.begin", "Arc.end", "Arc.delete"}));
    QCOMPARE(f.loop.GetRunCount(), 2);
}

void ActionLoopTest::aCommandChosenWhileAnActionEndsRunsAfterIt()
{
    ActionFixture f;
    f.AddInteractive("Line");
    f.AddInteractive("Erase");
    f.scripts["Line"].onEnd = [&f] { f.Choose("Erase"); };

    f.Choose("Line");

    QCOMPARE(f.log, (Log{"Line.begin", "Line.end", "Line.end done", "Line.delete", "Erase.begin",
                         "Erase.end", "Erase.delete"}));
    QCOMPARE(f.loop.GetGreatestDepth(), 1);
}

void ActionLoopTest::aCommandChosenWhileAnActionIsMadeRunsAfterIt()
{
    ActionFixture f;
    f.AddInteractive("Line");
    f.AddInteractive("Erase");
    f.scripts["Line"].onBegin = [&f] { f.Choose("Erase"); };

    f.Choose("Line");

    QCOMPARE(f.log, (Log{"Line.begin", "Line.begin done", "Line.end", "Line.delete", "Erase.begin",
                         "Erase.end", "Erase.delete"}));
    QCOMPARE(f.loop.GetRunCount(), 1);
}

void ActionLoopTest::resetKeepsTheCommandsThatWait()
{
    ActionFixture f;
    f.AddInteractive("Line");
    f.AddPlain("Undo");
    f.loop.Post([&f] {
        f.ChooseInMenu("Undo");
        ActionManager::Reset();
    });

    f.Choose("Line");

    QCOMPARE(f.log, (Log{"Line.begin", "Line.end", "Line.delete", "Undo"}));
}

void ActionLoopTest::resetWithoutAnActionDoesNothing()
{
    ActionFixture f;
    f.AddInteractive("Line");
    f.loop.Post([&f] { f.Click(); });

    ActionManager::Reset();
    f.Choose("Line");

    QCOMPARE(f.log, (Log{"Line.begin", "Line.click", "Line.end", "Line.delete"}));
    QCOMPARE(f.application.GetPostCount(), 3);
}

void ActionLoopTest::anInteractiveCommandWithoutAnActionIsDone()
{
    ActionFixture f;
    ICommandManager::Get()->AddCommand(MakeOwner<Command>(
        L"Line", Command::Kind::Interactive,
        [](IUiView*, const CommandParameters&) -> OwnerPtr<IAction> { return nullptr; }));

    f.Choose("Line");

    QCOMPARE(f.loop.GetRunCount(), 0);
    QVERIFY(f.HasRecord(R"({"n":1,"kind":"end","result":"done"})"));
}

void ActionLoopTest::noCommandAndAnUnknownIdDoNothing()
{
    ActionFixture f;
    f.AddInteractive("Line");
    f.loop.Post([&f] {
        ActionManager::ProcessCommand(&f.view, nullptr, {}, nullptr);
        ActionManager::SendCommand(L"Unknown", {}, nullptr);
    });
    f.loop.Post([&f] { f.Click(); });

    f.Choose("Line");

    QCOMPARE(f.log, (Log{"Line.begin", "Line.click", "Line.end", "Line.delete"}));
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::ActionLoopTest);
#include "ActionLoopTest.moc"
