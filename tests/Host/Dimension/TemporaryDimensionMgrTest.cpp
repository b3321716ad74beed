#include "Dimension/TemporaryDimensionMgr.h"

#include "Host/Command/ActionStandIns.h"
#include "Host/Dimension/HandlerStandIns.h"
#include "HostCore.h"
#include "Support/HostValues.h"
#include "Support/TestValues.h"

#include <memory>
#include <stdexcept>
#include <utility>

namespace vesk
{

namespace
{

TemporaryDimensionMgr& Manager()
{
    return *TemporaryDimensionMgr::GetInstance();
}

/// A host with a view, and scripted handlers.
struct Fixture
{
    Fixture() { core.GetViewManager().AddView(&view); }

    void SetContext(int kind) { Manager().SetContext(MakeOwner<StandInContext>(kind)); }
    void Regenerate(int kind) { Manager().Regenerate(MakeOwner<StandInContext>(kind)); }
    void PressKey() { Manager().OnKeyDown('1', false, false, false); }

    /// What was logged since the last call.
    Log TakeLog() { return std::exchange(script.log, {}); }

    RecordingView view{1};
    HostCore core;
    HandlerScript script;
    StandInHandlerFactory factory{script};
    StandInHandlerAccess access{script};
};

}

class TemporaryDimensionMgrTest : public QObject
{
    Q_OBJECT

private slots:
    void aContextGetsAHandlerAndGraphics();
    void graphicsAreMadeAgainAfterAHandlerThatThrew();
    void aHandlerThatThrowsAtItsEndIsDropped();
    void aFactoryIsRegisteredEvenIfTheOldHandlerThrows();
    void aContextOfTheSameKindKeepsTheHandler();
    void aContextOfAnotherKindReplacesTheHandler();
    void replacingEndsTheInputBeforeTheHandlerIsDropped();
    void replacingWithoutAnInputLeavesTheKeyboard();
    void aContextWithoutHandlerKeepsTheCurrentOne();
    void noContextDropsTheHandler();
    void withoutAFactoryNothingIsShown();
    void droppingEndsTheInputAndActivatesTheView();
    void withdrawingTheFactoryDropsTheHandler();
    void endingTheInputActivatesTheView();
    void endingWithoutAnInputDoesNothing();
    void anOpenEditorFollowsTheContext();
    void regeneratingPlacesTheEditorAgain();
    void regeneratingNeverMakesReplacesOrDropsAHandler();
    void theKindOfInputIsKnownWhileThereIsOne();
    void aKeyGoesToTheHandler();
    void aKeyWithoutAHandlerIsNotTaken();
    void aHandlerDroppedInItsKeyIsFreedAfterIt();
    void aHandlerDroppedWhileItIsDroppedIsFreedOnce();
    void aHandlerReplacedWhileItsInputEndsStaysTheNewOne();
    void aHandlerDroppedWhileItDrawsLeavesNoGraphics();
    void drawingInsideDrawingDoesNothing();
    void aContextLivesWhileTheHandlerDraws_data();
    void aContextLivesWhileTheHandlerDraws();
    void aContextThatIsReplacedIsFreed();
    void locksAreRemembered();
    void locksGoWithTheHandler();
    void locksOutliveAContextOfTheSameKind();
};

void TemporaryDimensionMgrTest::aContextGetsAHandlerAndGraphics()
{
    Fixture f;
    QVERIFY(!Manager().HasHandler());

    f.SetContext(1);

    QVERIFY(Manager().HasHandler());
    QVERIFY(Manager().GetGraphics() != nullptr);
    QCOMPARE(f.TakeLog(), (Log{"1.made", "1.graphics"}));
}

void TemporaryDimensionMgrTest::graphicsAreMadeAgainAfterAHandlerThatThrew()
{
    Fixture f;
    f.script.onGenerate = [] { throw std::runtime_error("graphics"); };
    QVERIFY_EXCEPTION_THROWN(f.SetContext(1), std::runtime_error);
    f.script.onGenerate = nullptr;

    f.SetContext(1);

    QVERIFY(Manager().GetGraphics() != nullptr);
}

void TemporaryDimensionMgrTest::aHandlerThatThrowsAtItsEndIsDropped()
{
    Fixture f;
    f.SetContext(1);
    f.script.onKeyDown = [&f] {
        f.script.onEndInput = [] { throw std::runtime_error("end"); };
        QVERIFY_EXCEPTION_THROWN(Manager().Drop(), std::runtime_error);
        f.script.log.push_back("dropped");
    };
    f.TakeLog();

    f.PressKey();

    // The handler lives on while its operation is on the stack.
    QVERIFY(f.TakeLog() == (Log{"1.key", "1.end input", "dropped", "1.key done", "1.delete"}));
    QVERIFY(!Manager().HasHandler());
}

void TemporaryDimensionMgrTest::aFactoryIsRegisteredEvenIfTheOldHandlerThrows()
{
    HandlerScript otherScript;
    StandInHandlerFactory other(otherScript);
    Fixture f;
    f.SetContext(1);
    f.script.onEndInput = [] { throw std::runtime_error("end"); };

    QVERIFY_EXCEPTION_THROWN(Manager().SetHandlerFactory(&other), std::runtime_error);

    f.SetContext(2);
    QCOMPARE(otherScript.log.front(), std::string("2.made"));
}

void TemporaryDimensionMgrTest::aContextOfTheSameKindKeepsTheHandler()
{
    Fixture f;
    f.SetContext(1);
    f.TakeLog();

    f.SetContext(1);

    QCOMPARE(f.TakeLog(), (Log{"1.graphics"}));
}

void TemporaryDimensionMgrTest::aContextOfAnotherKindReplacesTheHandler()
{
    Fixture f;
    f.SetContext(1);
    f.TakeLog();

    f.SetContext(2);

    QCOMPARE(f.TakeLog(), (Log{"2.made", "1.end input", "2.graphics", "1.delete"}));
    QVERIFY(Manager().HasHandler());
}

void TemporaryDimensionMgrTest::replacingEndsTheInputBeforeTheHandlerIsDropped()
{
    Fixture f;
    f.SetContext(1);
    f.PressKey();

    f.SetContext(2);

    const Log log = f.TakeLog();
    const auto at = [&log](const char* entry) { return std::find(log.begin(), log.end(), entry); };
    QVERIFY(at("2.made") < at("1.end input"));
    QVERIFY(at("1.end input") < at("1.delete"));
    QVERIFY(at("1.delete") != log.end());
    QVERIFY(!Manager().IsInputting());
    QCOMPARE(f.view.GetActivationCount(), 1);
}

void TemporaryDimensionMgrTest::replacingWithoutAnInputLeavesTheKeyboard()
{
    Fixture f;
    f.SetContext(1);

    f.SetContext(2);

    QCOMPARE(f.view.GetActivationCount(), 0);
}

void TemporaryDimensionMgrTest::aContextWithoutHandlerKeepsTheCurrentOne()
{
    Fixture f;
    f.SetContext(1);
    f.TakeLog();

    f.SetContext(0);

    QCOMPARE(f.TakeLog(), (Log{"1.graphics"}));
}

void TemporaryDimensionMgrTest::noContextDropsTheHandler()
{
    Fixture f;
    f.SetContext(1);
    f.TakeLog();

    Manager().SetContext(nullptr);

    QCOMPARE(f.TakeLog(), (Log{"1.end input", "1.delete"}));
    QVERIFY(!Manager().HasHandler());
    QVERIFY(Manager().GetGraphics() == nullptr);
}

void TemporaryDimensionMgrTest::withoutAFactoryNothingIsShown()
{
    Fixture f;
    Manager().SetHandlerFactory(nullptr);

    f.SetContext(1);

    QVERIFY(!Manager().HasHandler());
    QVERIFY(Manager().GetGraphics() == nullptr);
}

void TemporaryDimensionMgrTest::droppingEndsTheInputAndActivatesTheView()
{
    Fixture f;
    f.SetContext(1);
    f.PressKey();
    f.TakeLog();

    Manager().Drop();

    QCOMPARE(f.TakeLog(), (Log{"1.end input", "1.delete"}));
    QCOMPARE(f.view.GetActivationCount(), 1);
}

void TemporaryDimensionMgrTest::withdrawingTheFactoryDropsTheHandler()
{
    Fixture f;
    f.SetContext(1);
    f.TakeLog();
    f.script.onEndInput = [&f] { f.SetContext(2); };

    Manager().SetHandlerFactory(nullptr);

    QCOMPARE(f.TakeLog(), (Log{"1.end input", "1.end input done", "1.delete"}));
    QVERIFY(!Manager().HasHandler());
}

void TemporaryDimensionMgrTest::endingTheInputActivatesTheView()
{
    Fixture f;
    f.SetContext(1);
    f.PressKey();
    QVERIFY(Manager().IsInputting());

    Manager().EndInput();

    QVERIFY(!Manager().IsInputting());
    QVERIFY(Manager().HasHandler());
    QCOMPARE(f.view.GetActivationCount(), 1);
}

void TemporaryDimensionMgrTest::endingWithoutAnInputDoesNothing()
{
    Fixture f;
    Manager().EndInput();
    f.SetContext(1);
    f.TakeLog();

    Manager().EndInput();

    QVERIFY(f.TakeLog().empty());
    QCOMPARE(f.view.GetActivationCount(), 0);
}

void TemporaryDimensionMgrTest::anOpenEditorFollowsTheContext()
{
    Fixture f;
    f.SetContext(1);
    f.PressKey();
    f.TakeLog();

    f.SetContext(1);

    QCOMPARE(f.TakeLog(), (Log{"1.graphics", "place"}));
}

void TemporaryDimensionMgrTest::regeneratingPlacesTheEditorAgain()
{
    Fixture f;
    f.SetContext(1);
    f.PressKey();
    f.TakeLog();

    f.Regenerate(1);

    QCOMPARE(f.TakeLog(), (Log{"1.graphics", "place"}));
    QVERIFY(Manager().IsInputting());
}

void TemporaryDimensionMgrTest::regeneratingNeverMakesReplacesOrDropsAHandler()
{
    Fixture f;
    f.Regenerate(1);
    QVERIFY(f.TakeLog().empty());
    f.SetContext(1);
    f.TakeLog();

    f.Regenerate(2);
    Manager().Regenerate(nullptr);

    QCOMPARE(f.TakeLog(), (Log{"1.graphics"}));
    QVERIFY(Manager().HasHandler());
    QVERIFY(Manager().GetGraphics() != nullptr);
}

void TemporaryDimensionMgrTest::theKindOfInputIsKnownWhileThereIsOne()
{
    Fixture f;
    f.SetContext(1);
    QCOMPARE(static_cast<int>(Manager().GetInputState()), 0);

    f.PressKey();

    QCOMPARE(static_cast<int>(Manager().GetInputState()), 2);
}

void TemporaryDimensionMgrTest::aKeyGoesToTheHandler()
{
    Fixture f;
    f.SetContext(1);

    QVERIFY(Manager().OnKeyDown('1', false, false, false));
    QVERIFY(!Manager().OnKeyDown('?', false, false, false));
}

void TemporaryDimensionMgrTest::aKeyWithoutAHandlerIsNotTaken()
{
    Fixture f;

    QVERIFY(!Manager().OnKeyDown('1', false, false, false));
}

void TemporaryDimensionMgrTest::aHandlerDroppedInItsKeyIsFreedAfterIt()
{
    Fixture f;
    f.SetContext(1);
    f.TakeLog();
    f.script.onKeyDown = [] { Manager().Drop(); };

    QVERIFY(Manager().OnKeyDown('1', false, false, false));

    QCOMPARE(f.TakeLog(), (Log{"1.key", "1.end input", "1.key done", "1.delete"}));
    QVERIFY(!Manager().HasHandler());
}

void TemporaryDimensionMgrTest::aHandlerDroppedWhileItIsDroppedIsFreedOnce()
{
    Fixture f;
    f.SetContext(1);
    f.TakeLog();
    f.script.onEndInput = [] { Manager().Drop(); };

    Manager().Drop();

    QCOMPARE(f.TakeLog(), (Log{"1.end input", "1.end input done", "1.delete"}));
}

void TemporaryDimensionMgrTest::aHandlerReplacedWhileItsInputEndsStaysTheNewOne()
{
    Fixture f;
    f.SetContext(1);
    f.TakeLog();
    f.script.onEndInput = [&f] {
        f.script.onEndInput = nullptr;
        f.SetContext(3);
    };

    f.SetContext(2);

    const Log log = f.TakeLog();
    QVERIFY(Manager().HasHandler());
    QVERIFY(Manager().GetGraphics() != nullptr);
    QCOMPARE(std::count(log.begin(), log.end(), "1.delete"), std::ptrdiff_t(1));
    QCOMPARE(std::count(log.begin(), log.end(), "2.delete"), std::ptrdiff_t(1));
    QCOMPARE(std::count(log.begin(), log.end(), "3.delete"), std::ptrdiff_t(0));
}

void TemporaryDimensionMgrTest::aHandlerDroppedWhileItDrawsLeavesNoGraphics()
{
    Fixture f;
    f.script.onGenerate = [] { Manager().Drop(); };

    f.SetContext(1);

    QVERIFY(Manager().GetGraphics() == nullptr);
    QVERIFY(!Manager().HasHandler());
}

void TemporaryDimensionMgrTest::drawingInsideDrawingDoesNothing()
{
    Fixture f;
    f.script.onGenerate = [&f] { f.Regenerate(1); };

    f.SetContext(1);

    QCOMPARE(f.TakeLog(), (Log{"1.made", "1.graphics", "1.graphics done"}));
}

void TemporaryDimensionMgrTest::aContextLivesWhileTheHandlerDraws_data()
{
    QTest::addColumn<int>("nextKind");
    QTest::newRow("another context") << 1;
    QTest::newRow("another kind") << 2;
    QTest::newRow("no context") << -1;
}

void TemporaryDimensionMgrTest::aContextLivesWhileTheHandlerDraws()
{
    QFETCH(int, nextKind);
    Fixture f;
    auto pToken = std::make_shared<int>();
    const std::weak_ptr<int> pContext = pToken;
    bool isAlive = false;
    bool isFirst = true;
    f.script.onGenerate = [&] {
        if (!std::exchange(isFirst, false))
            return;
        if (nextKind < 0)
            Manager().Drop();
        else
            f.SetContext(nextKind);
        isAlive = !pContext.expired();
    };

    Manager().SetContext(MakeOwner<StandInContext>(1, std::move(pToken)));

    QVERIFY(isAlive);
    QVERIFY(pContext.expired());
}

void TemporaryDimensionMgrTest::aContextThatIsReplacedIsFreed()
{
    Fixture f;
    auto pToken = std::make_shared<int>();
    const std::weak_ptr<int> pContext = pToken;
    Manager().SetContext(MakeOwner<StandInContext>(1, std::move(pToken)));
    QVERIFY(!pContext.expired());

    f.SetContext(1);

    QVERIFY(pContext.expired());
}

void TemporaryDimensionMgrTest::locksAreRemembered()
{
    Fixture f;

    Manager().SetLocked(InputState::IS_Angle, true);
    Manager().SetLocked(InputState::IS_Length, true);
    Manager().SetLocked(InputState::IS_Length, true);
    QCOMPARE(Manager().GetLocked(),
             (std::vector<InputState>{InputState::IS_Length, InputState::IS_Angle}));

    Manager().SetLocked(InputState::IS_Length, false);
    QVERIFY(!Manager().IsLocked(InputState::IS_Length));
    QVERIFY(Manager().IsLocked(InputState::IS_Angle));
}

void TemporaryDimensionMgrTest::locksGoWithTheHandler()
{
    Fixture f;
    f.SetContext(1);
    Manager().SetLocked(InputState::IS_Length, true);
    f.SetContext(2);
    QVERIFY(Manager().GetLocked().empty());

    Manager().SetLocked(InputState::IS_Length, true);
    Manager().Drop();
    QVERIFY(Manager().GetLocked().empty());
}

void TemporaryDimensionMgrTest::locksOutliveAContextOfTheSameKind()
{
    Fixture f;
    f.SetContext(1);
    Manager().SetLocked(InputState::IS_Length, true);

    f.SetContext(1);
    f.Regenerate(1);

    QVERIFY(Manager().IsLocked(InputState::IS_Length));
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::TemporaryDimensionMgrTest);
#include "TemporaryDimensionMgrTest.moc"
