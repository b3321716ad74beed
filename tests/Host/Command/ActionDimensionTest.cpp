#include "Host/Command/ActionFixture.h"
#include "Host/Dimension/HandlerStandIns.h"

#include "Command/IActionManager.h"
#include "Support/TestValues.h"

#include <algorithm>
#include <functional>

namespace vesk
{

namespace
{

TemporaryDimensionMgr& Dimensions()
{
    return *TemporaryDimensionMgr::GetInstance();
}

/// A line command that shows dimensions, and scripted handlers.
struct Fixture : ActionFixture
{
    Fixture()
    {
        AddInteractive("Line");
        scripts["Line"].makeContext = [] { return MakeOwner<StandInContext>(1); };
    }

    /// Runs the line command with one event.
    void Run(ScriptedLoop::Event event)
    {
        loop.Post(std::move(event));
        Choose("Line");
    }

    /// What the handlers have logged since the last call.
    Log TakeHandlerLog() { return std::exchange(handlers.log, {}); }

    HandlerScript handlers;
    StandInHandlerFactory factory{handlers};
    StandInHandlerAccess access{handlers};
};

}

/// The provisional dimensions of the running action.
class ActionDimensionTest : public QObject
{
    Q_OBJECT

private slots:
    void theBeginShowsTheDimensions();
    void aStepShowsTheDimensionsAnew();
    void aMouseMoveShowsTheDimensionsAnew();
    void anActionWithoutDimensionsDropsTheHandler();
    void refreshingMakesGraphicsOnly();
    void refreshingGoesOnUntilTheEnd();
    void refreshingAsksForNoContext();
    void renewingAsksForAContext();
    void renewingKeepsTheHandler();
    void renewingGoesOnUntilTheEnd();
    void aFreedValueShowsTheDimensionsAnew();
    void aHandlerMayRefreshInItsKey();
    void theEndDropsTheHandlerBeforeTheActionIsFreed();
    void theActionIsUnknownWhileItsInputEnds();
    void anActionThatEndsInAKeyLeavesItsHandlerAliveThatLong();
};

void ActionDimensionTest::theBeginShowsTheDimensions()
{
    Fixture f;
    Log log;

    f.Run([&] { log = f.TakeHandlerLog(); });

    QCOMPARE(log, (Log{"1.made", "1.graphics"}));
}

void ActionDimensionTest::aStepShowsTheDimensionsAnew()
{
    Fixture f;
    Log log;

    f.Run([&] {
        f.TakeHandlerLog();
        f.Click();
        log = f.TakeHandlerLog();
    });

    QCOMPARE(log, (Log{"1.graphics"}));
}

void ActionDimensionTest::aMouseMoveShowsTheDimensionsAnew()
{
    Fixture f;
    Log log;

    f.Run([&] {
        Dimensions().OnKeyDown('1', false, false, false);
        f.TakeHandlerLog();
        f.MoveMouse();
        log = f.TakeHandlerLog();
    });

    QCOMPARE(log, (Log{"1.graphics", "place"}));
}

void ActionDimensionTest::anActionWithoutDimensionsDropsTheHandler()
{
    Fixture f;
    Log log;

    f.Run([&] {
        f.TakeHandlerLog();
        f.scripts["Line"].makeContext = nullptr;
        f.MoveMouse();
        log = f.TakeHandlerLog();
    });

    QCOMPARE(log, (Log{"1.end input", "1.delete"}));
}

void ActionDimensionTest::refreshingMakesGraphicsOnly()
{
    Fixture f;
    Log log;

    f.Run([&] {
        Dimensions().OnKeyDown('1', false, false, false);
        f.TakeHandlerLog();
        f.scripts["Line"].makeContext = [] { return MakeOwner<StandInContext>(2); };
        ActionManager::RefreshViewInput(&f.view);
        ActionManager::RefreshViewInput(nullptr);
        log = f.TakeHandlerLog();
    });

    QCOMPARE(log, (Log{"1.graphics", "place", "1.graphics", "place"}));
}

void ActionDimensionTest::refreshingGoesOnUntilTheEnd()
{
    Fixture f;
    Log log;

    f.Run([&] {
        Dimensions().OnKeyDown('1', false, false, false);
        ActionManager::Reset();
        f.TakeHandlerLog();
        ActionManager::RefreshViewInput(&f.view);
        log = f.TakeHandlerLog();
    });

    QVERIFY(log == (Log{"1.graphics", "place"}));
}

/// How often something asks the running action for a context.
static int CountContexts(const std::function<void(Fixture& f)>& act)
{
    Fixture f;
    int asked = 0;
    f.scripts["Line"].makeContext = [&asked] {
        ++asked;
        return MakeOwner<StandInContext>(1);
    };
    f.Run([&] {
        asked = 0;
        act(f);
    });
    return asked;
}

void ActionDimensionTest::refreshingAsksForNoContext()
{
    QCOMPARE(CountContexts([](Fixture& f) { ActionManager::RefreshViewInput(&f.view); }), 0);
}

void ActionDimensionTest::renewingAsksForAContext()
{
    QCOMPARE(CountContexts([](Fixture& f) { ActionManager::RenewViewInput(&f.view); }), 1);
}

void ActionDimensionTest::renewingKeepsTheHandler()
{
    Fixture f;
    Log log;
    int redraws = 0;

    f.Run([&] {
        Dimensions().OnKeyDown('1', false, false, false);
        f.TakeHandlerLog();
        f.scripts["Line"].makeContext = [] { return MakeOwner<StandInContext>(2); };
        redraws = f.view.GetRedrawCount();
        ActionManager::RenewViewInput(&f.view);
        redraws = f.view.GetRedrawCount() - redraws;
        ActionManager::RenewViewInput(nullptr);
        log = f.TakeHandlerLog();
    });

    QCOMPARE(log, (Log{"1.graphics", "place", "1.graphics", "place"}));
    QCOMPARE(redraws, 1);
}

void ActionDimensionTest::renewingGoesOnUntilTheEnd()
{
    Fixture f;
    Log log;

    f.Run([&] {
        Dimensions().OnKeyDown('1', false, false, false);
        ActionManager::Reset();
        f.TakeHandlerLog();
        ActionManager::RenewViewInput(&f.view);
        log = f.TakeHandlerLog();
    });

    QCOMPARE(log, (Log{"1.graphics", "place"}));
}

void ActionDimensionTest::aFreedValueShowsTheDimensionsAnew()
{
    Fixture f;
    Log handlerLog;
    int redraws = 0;

    f.Run([&] {
        Dimensions().OnKeyDown('1', false, false, false);
        f.TakeHandlerLog();
        redraws = f.view.GetRedrawCount();
        ActionManager::FreeValue(&f.view, InputState::IS_Angle);
        redraws = f.view.GetRedrawCount() - redraws;
        handlerLog = f.TakeHandlerLog();
    });

    QVERIFY(handlerLog == (Log{"1.graphics", "place"}));
    QVERIFY(std::count(f.log.begin(), f.log.end(), "Line.freed 2") == 1);
    QCOMPARE(redraws, 1);
}

void ActionDimensionTest::aHandlerMayRefreshInItsKey()
{
    Fixture f;
    f.handlers.onKeyDown = [&f] { ActionManager::RefreshViewInput(&f.view); };
    Log log;

    f.Run([&] {
        f.TakeHandlerLog();
        Dimensions().OnKeyDown('1', false, false, false);
        log = f.TakeHandlerLog();
    });

    QCOMPARE(log, (Log{"1.key", "1.graphics", "place", "1.key done"}));
}

void ActionDimensionTest::theEndDropsTheHandlerBeforeTheActionIsFreed()
{
    Fixture f;
    f.handlers.onEndInput = [&f] { f.log.push_back("end input"); };

    f.Run([] { Dimensions().OnKeyDown('1', false, false, false); });

    QCOMPARE(f.log, (Log{"Line.begin", "Line.end", "end input", "Line.delete"}));
    QVERIFY(!Dimensions().HasHandler());
    QCOMPARE(f.view.GetActivationCount(), 2);
}

void ActionDimensionTest::theActionIsUnknownWhileItsInputEnds()
{
    Fixture f;
    bool isKnown = true;
    f.handlers.onEndInput = [&] {
        isKnown = IActionManager::CurrentAction() != nullptr;
        ActionManager::RefreshViewInput(&f.view);
    };

    f.Run([] { Dimensions().OnKeyDown('1', false, false, false); });

    QVERIFY(!isKnown);
    QVERIFY(!Dimensions().HasHandler());
}

void ActionDimensionTest::anActionThatEndsInAKeyLeavesItsHandlerAliveThatLong()
{
    Fixture f;
    ActionManager::SetEventLoop(nullptr);
    f.handlers.onKeyDown = [] { ActionManager::Reset(); };
    f.Choose("Line");
    f.TakeHandlerLog();

    Dimensions().OnKeyDown('1', false, false, false);

    QCOMPARE(f.TakeHandlerLog(), (Log{"1.key", "1.end input", "1.key done", "1.delete"}));
    QCOMPARE(f.log, (Log{"Line.begin", "Line.end", "Line.delete"}));
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::ActionDimensionTest);
#include "ActionDimensionTest.moc"
