#include "Dimension/TemporaryDimensionMgr.h"

#include "Host/Command/ActionStandIns.h"
#include "Host/Dimension/HandlerStandIns.h"
#include "HostCore.h"
#include "Support/HostValues.h"
#include "Support/TestValues.h"

#include <memory>
#include <optional>

namespace vesk
{

namespace
{

TemporaryDimensionMgr& Manager()
{
    return *TemporaryDimensionMgr::GetInstance();
}

/// A host with a view and a scripted handler of kind 1.
struct Fixture
{
    Fixture()
    {
        core.GetViewManager().AddView(&view);
        SetContext(1);
        script.log.clear();
    }

    void SetContext(int kind) { Manager().SetContext(MakeOwner<StandInContext>(kind)); }
    void Regenerate() { Manager().Regenerate(MakeOwner<StandInContext>(1)); }
    void PressKey() { Manager().OnKeyDown('1', false, false, false); }

    RecordingView view{1};
    HostCore core;
    HandlerScript script;
    std::optional<StandInHandlerFactory> factory{script};
    std::optional<StandInHandlerAccess> access{script};
};

}

/// Which calls handlers receive, and what they may do with the manager meanwhile.
class TemporaryDimensionMgrCallsTest : public QObject
{
    Q_OBJECT

private slots:
    void aKeyComesWithItsModifiers_data();
    void aKeyComesWithItsModifiers();
    void theSameFactoryAgainKeepsTheHandler();
    void aHandlerDroppedWhileItsInputIsEndedIsFreedAfterIt();
    void aHandlerDroppedWhileItDrawsIsFreedAfterIt_data();
    void aHandlerDroppedWhileItDrawsIsFreedAfterIt();
    void aHandlerReplacedWhileItDrawsLeavesTheGraphicsOfTheNewOne();
    void graphicsAndLocksAreGoneWhenTheInputOfAHandlerEnds_data();
    void graphicsAndLocksAreGoneWhenTheInputOfAHandlerEnds();
    void droppingWithoutAnInputLeavesTheKeyboard();
    void anInputEndsWithoutAnyView();
    void rawTextIsKnownWhileThereIsAnInput();
    void withoutAccessNothingIsKnownOfTheInput();
    void aLockedValueIsKnown();
};

void TemporaryDimensionMgrCallsTest::aKeyComesWithItsModifiers_data()
{
    QTest::addColumn<bool>("isCtrl");
    QTest::addColumn<bool>("isAlt");
    QTest::addColumn<bool>("isShift");
    QTest::addColumn<QString>("key");
    QTest::newRow("none") << false << false << false << "65";
    QTest::newRow("ctrl") << true << false << false << "65 ctrl";
    QTest::newRow("alt") << false << true << false << "65 alt";
    QTest::newRow("shift") << false << false << true << "65 shift";
}

void TemporaryDimensionMgrCallsTest::aKeyComesWithItsModifiers()
{
    QFETCH(bool, isCtrl);
    QFETCH(bool, isAlt);
    QFETCH(bool, isShift);
    QFETCH(QString, key);
    Fixture f;

    Manager().OnKeyDown('A', isCtrl, isAlt, isShift);

    QCOMPARE(f.script.key, key.toStdString());
}

void TemporaryDimensionMgrCallsTest::theSameFactoryAgainKeepsTheHandler()
{
    Fixture f;

    Manager().SetHandlerFactory(&*f.factory);

    QVERIFY(Manager().HasHandler());
    QVERIFY(f.script.log.empty());
}

void TemporaryDimensionMgrCallsTest::aHandlerDroppedWhileItsInputIsEndedIsFreedAfterIt()
{
    Fixture f;
    f.PressKey();
    f.script.log.clear();
    f.script.onEndInput = [&f] {
        f.script.onEndInput = nullptr;
        Manager().Drop();
    };

    Manager().EndInput();

    QCOMPARE(f.script.log, (Log{"1.end input", "1.end input", "1.end input done", "1.delete"}));
}

void TemporaryDimensionMgrCallsTest::aHandlerDroppedWhileItDrawsIsFreedAfterIt_data()
{
    QTest::addColumn<bool>("isContextNew");
    QTest::newRow("context") << true;
    QTest::newRow("the same again") << false;
}

void TemporaryDimensionMgrCallsTest::aHandlerDroppedWhileItDrawsIsFreedAfterIt()
{
    QFETCH(bool, isContextNew);
    Fixture f;
    f.script.onGenerate = [] { Manager().Drop(); };

    if (isContextNew)
        f.SetContext(1);
    else
        f.Regenerate();

    QCOMPARE(f.script.log, (Log{"1.graphics", "1.end input", "1.graphics done", "1.delete"}));
    QVERIFY(Manager().GetGraphics() == nullptr);
}

void TemporaryDimensionMgrCallsTest::aHandlerReplacedWhileItDrawsLeavesTheGraphicsOfTheNewOne()
{
    Fixture f;
    f.PressKey();
    f.script.log.clear();
    f.script.onGenerate = [&f] {
        f.script.onGenerate = nullptr;
        f.SetContext(2);
    };

    f.Regenerate();

    // The old handler's editor is no longer repositioned.
    QCOMPARE(f.script.log,
             (Log{"1.graphics", "2.made", "1.end input", "1.graphics done", "1.delete"}));
    QVERIFY(Manager().HasHandler());
}

void TemporaryDimensionMgrCallsTest::graphicsAndLocksAreGoneWhenTheInputOfAHandlerEnds_data()
{
    QTest::addColumn<int>("nextKind");
    QTest::newRow("dropped") << -1;
    QTest::newRow("replaced") << 2;
}

void TemporaryDimensionMgrCallsTest::graphicsAndLocksAreGoneWhenTheInputOfAHandlerEnds()
{
    QFETCH(int, nextKind);
    Fixture f;
    Manager().SetLocked(InputState::IS_Length, true);
    QVERIFY(Manager().GetGraphics() != nullptr);
    bool isGone = false;
    f.script.onEndInput = [&isGone] {
        isGone = Manager().GetGraphics() == nullptr && Manager().GetLocked().empty();
    };

    if (nextKind < 0)
        Manager().Drop();
    else
        f.SetContext(nextKind);

    QVERIFY(isGone);
}

void TemporaryDimensionMgrCallsTest::droppingWithoutAnInputLeavesTheKeyboard()
{
    Fixture f;

    Manager().Drop();

    QCOMPARE(f.view.GetActivationCount(), 0);
}

void TemporaryDimensionMgrCallsTest::anInputEndsWithoutAnyView()
{
    Fixture f;
    f.core.GetViewManager().RemoveView(&f.view);
    f.PressKey();

    Manager().EndInput();
    Manager().Drop();

    QVERIFY(!Manager().HasHandler());
    QCOMPARE(f.view.GetActivationCount(), 0);
}

void TemporaryDimensionMgrCallsTest::rawTextIsKnownWhileThereIsAnInput()
{
    Fixture f;
    f.script.isRawText = true;
    QVERIFY(!Manager().IsRawTextInput());

    f.PressKey();
    QVERIFY(Manager().IsRawTextInput());
    f.script.isRawText = false;

    QVERIFY(!Manager().IsRawTextInput());
}

void TemporaryDimensionMgrCallsTest::withoutAccessNothingIsKnownOfTheInput()
{
    Fixture f;
    f.script.isRawText = true;
    f.access.reset();
    f.PressKey();
    f.script.log.clear();

    f.SetContext(1);

    QCOMPARE(f.script.log, (Log{"1.graphics"}));
    QCOMPARE(Manager().GetInputState(), InputState::IS_None);
    QVERIFY(!Manager().IsRawTextInput());
}

void TemporaryDimensionMgrCallsTest::aLockedValueIsKnown()
{
    const Fixture f;

    Manager().SetLocked(InputState::IS_Angle, true, 270.0);
    Manager().SetLocked(InputState::IS_Length, true);

    QCOMPARE(Manager().GetLockedValue(InputState::IS_Angle), std::optional<double>(270.0));
    QCOMPARE(Manager().GetLockedValue(InputState::IS_Length), std::optional<double>());
    QCOMPARE(Manager().GetLockedValue(InputState::IS_Width), std::optional<double>());
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::TemporaryDimensionMgrCallsTest);
#include "TemporaryDimensionMgrCallsTest.moc"
