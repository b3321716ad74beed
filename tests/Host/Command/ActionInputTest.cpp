#include "Host/Command/ActionFixture.h"

#include "Command/IActionManager.h"
#include "Command/TypedValue.h"
#include "Dimension/InputState.h"
#include "Dimension/LengthUnit.h"
#include "Support/TestValues.h"

#include <memory>

namespace vesk
{

using Input = std::function<void(ActionFixture&)>;

}

Q_DECLARE_METATYPE(vesk::Input)
Q_DECLARE_METATYPE(vesk::InputState)

namespace vesk
{

namespace
{

void AddInputRows()
{
    QTest::addColumn<Input>("input");
    QTest::addColumn<QString>("entry");
    QTest::newRow("click") << Input(&ActionFixture::Click) << "Line.click";
    QTest::newRow("move") << Input(&ActionFixture::MoveMouse) << "Line.move";
    QTest::newRow("typed value") << Input(&ActionFixture::TypeValue) << "Line.input";
    QTest::newRow("escape") << Input(&ActionFixture::PressEscape) << "Line.escape";
}

}

/// What the view passes to the running action, and when that ends the action.
class ActionInputTest : public QObject
{
    Q_OBJECT

private slots:
    void inputReachesTheRunningAction_data() { AddInputRows(); }
    void inputReachesTheRunningAction();
    void inputWithoutAnActionDoesNothing_data() { AddInputRows(); }
    void inputWithoutAnActionDoesNothing();
    void anActionThatIsFinishedEnds_data() { AddInputRows(); }
    void anActionThatIsFinishedEnds();
    void anActionThatIsToEndTakesNothingMore_data() { AddInputRows(); }
    void anActionThatIsToEndTakesNothingMore();
    void anActionThatEndsTakesNothingMore_data() { AddInputRows(); }
    void anActionThatEndsTakesNothingMore();
    void escapeDropsLocksFirst();
    void escapeEndsAnActionWithoutLocks();
    void clicksForTheNextCommandGoToIt();
    void otherInputForTheNextCommandIsDoneInOrder();
    void noInputIsKeptWhereNoCommandWaits();
    void anEscapeForTheNextCommandEndsIt();
    void clicksAfterTheLastActionAreLost();
    void clicksDoNotWaitForACommandThatIsChosenLater();
    void theTextIsHandedOnWithItsValue();
    void theTextGoesWithOneValueOnly();
    void theTextIsForgottenWithItsScope();
    void aValueIsToldInModelUnits_data();
    void aValueIsToldInModelUnits();
    void anUnknownKindIsOfNoField();
    void theInputMayBelongToAHandlerThatIsDropped();
};

void ActionInputTest::inputReachesTheRunningAction()
{
    QFETCH(Input, input);
    QFETCH(QString, entry);
    ActionFixture f;
    f.AddInteractive("Line");
    f.loop.Post([&] { input(f); });

    f.Choose("Line");

    QVERIFY(f.Has(entry.toStdString()));
}

void ActionInputTest::inputWithoutAnActionDoesNothing()
{
    QFETCH(Input, input);
    ActionFixture f;

    input(f);

    QVERIFY(f.log.empty());
    QCOMPARE(f.application.GetPostCount(), 0);
}

void ActionInputTest::anActionThatIsFinishedEnds()
{
    QFETCH(Input, input);
    ActionFixture f;
    f.AddInteractive("Line");
    f.scripts["Line"].hasLocks = true;
    f.loop.Post([&] {
        f.scripts["Line"].isFinished = true;
        input(f);
    });
    f.loop.Post([&f] { f.log.push_back("later event"); });

    f.Choose("Line");

    QVERIFY(f.Has("Line.end"));
    QVERIFY(!f.Has("later event"));
}

void ActionInputTest::anActionThatIsToEndTakesNothingMore()
{
    QFETCH(Input, input);
    QFETCH(QString, entry);
    ActionFixture f;
    f.AddInteractive("Line");
    f.loop.Post([&] {
        ActionManager::Reset();
        input(f);
    });

    f.Choose("Line");

    QVERIFY(!f.Has(entry.toStdString()));
    QVERIFY(f.Has("Line.end"));
}

void ActionInputTest::anActionThatEndsTakesNothingMore()
{
    QFETCH(Input, input);
    ActionFixture f;
    f.AddInteractive("Line");
    f.scripts["Line"].onEnd = [&] {
        input(f);
        ActionManager::Reset();
    };

    f.Choose("Line");

    QCOMPARE(f.log, (Log{"Line.begin", "Line.end", "Line.end done", "Line.delete"}));
}

void ActionInputTest::escapeDropsLocksFirst()
{
    ActionFixture f;
    f.AddInteractive("Line");
    f.scripts["Line"].hasLocks = true;
    f.loop.Post([&f] { f.PressEscape(); });
    f.loop.Post([&f] { f.Click(); });

    f.Choose("Line");

    QCOMPARE(f.log, (Log{"Line.begin", "Line.escape", "Line.click", "Line.end", "Line.delete"}));
}

void ActionInputTest::escapeEndsAnActionWithoutLocks()
{
    ActionFixture f;
    f.AddInteractive("Line");
    f.loop.Post([&f] { f.PressEscape(); });
    f.loop.Post([&f] { f.Click(); });

    f.Choose("Line");

    QCOMPARE(f.log, (Log{"Line.begin", "Line.escape", "Line.end", "Line.delete"}));
}

void ActionInputTest::clicksForTheNextCommandGoToIt()
{
    ActionFixture f;
    f.AddInteractive("Line");
    f.AddInteractive("Arc");
    f.loop.Post([&f] {
        f.Choose("Arc");
        f.Click();
        f.Click();
    });

    f.Choose("Line");

    QCOMPARE(f.log, (Log{"Line.begin", "Line.end", "Line.delete", "Arc.begin", "Arc.click",
                         "Arc.click", "Arc.end", "Arc.delete"}));
}

void ActionInputTest::otherInputForTheNextCommandIsDoneInOrder()
{
    ActionFixture f;
    f.AddInteractive("Line");
    f.AddInteractive("Arc");
    f.loop.Post([&f] {
        f.Choose("Arc");
        QVERIFY(ActionManager::IsCommandWaiting());
        f.Click();
        QVERIFY(ActionManager::HoldInput([&f] { f.log.push_back("key"); }));
        f.Click();
    });

    f.Choose("Line");

    QCOMPARE(f.log, (Log{"Line.begin", "Line.end", "Line.delete", "Arc.begin", "Arc.click", "key",
                         "Arc.click", "Arc.end", "Arc.delete"}));
}

void ActionInputTest::noInputIsKeptWhereNoCommandWaits()
{
    ActionFixture f;
    f.AddInteractive("Line");
    f.loop.Post([&f] {
        QVERIFY(!ActionManager::IsCommandWaiting());
        QVERIFY(!ActionManager::HoldInput([&f] { f.log.push_back("key"); }));
    });

    f.Choose("Line");

    QVERIFY(!ActionManager::HoldInput([&f] { f.log.push_back("key"); }));
    QVERIFY(!f.Has("key"));
}

void ActionInputTest::anEscapeForTheNextCommandEndsIt()
{
    ActionFixture f;
    f.AddInteractive("Line");
    f.AddInteractive("Arc");
    f.loop.Post([&f] {
        f.Choose("Arc");
        f.PressEscape();
        f.Click();
    });

    f.Choose("Line");

    QCOMPARE(f.log, (Log{"Line.begin", "Line.end", "Line.delete", "Arc.begin", "Arc.escape",
                         "Arc.end", "Arc.delete"}));
    QCOMPARE(f.loop.GetRunCount(), 1);
}

void ActionInputTest::clicksAfterTheLastActionAreLost()
{
    ActionFixture f;
    f.AddInteractive("Line");
    f.loop.Post([&f] {
        f.PressEscape();
        f.Click();
    });

    f.Choose("Line");
    f.Choose("Line");

    QVERIFY(!f.Has("Line.click"));
}

void ActionInputTest::clicksDoNotWaitForACommandThatIsChosenLater()
{
    ActionFixture f;
    f.AddInteractive("Line");
    f.AddPlain("Undo");
    f.loop.Post([&f] {
        f.ChooseInMenu("Undo");
        f.Click();
    });

    f.Choose("Line");
    f.Choose("Line");

    QVERIFY(!f.Has("Line.click"));
}

void ActionInputTest::theTextIsHandedOnWithItsValue()
{
    ActionFixture f;
    f.AddInteractive("Line");
    f.loop.Post([&] {
        const EditorTextScope text({L"12.5", true, 317.5});
        f.TypeValue();
    });

    f.Choose("Line");

    const TypedValue& seen = f.scripts["Line"].typed;
    QCOMPARE(seen.text, std::wstring(L"12.5"));
    QVERIFY(seen.isUnchanged);
    QCOMPARE_EXACTLY(seen.value, 317.5);
}

void ActionInputTest::theTextGoesWithOneValueOnly()
{
    ActionFixture f;
    f.AddInteractive("Line");
    EditorText within;
    f.scripts["Line"].onViewInput = [&](const ActionViewInput&) {
        within = EditorTextScope::Take();
    };
    f.loop.Post([&] {
        const EditorTextScope text({L"12.5", true, 317.5});
        f.TypeValue();
        f.TypeValue();
    });

    f.Choose("Line");

    QVERIFY(within.text.empty());
    const TypedValue& second = f.scripts["Line"].typed;
    QVERIFY(second.text.empty());
    QVERIFY(!second.isUnchanged);
    QVERIFY(second.value != 317.5);
}

void ActionInputTest::theTextIsForgottenWithItsScope()
{
    {
        const EditorTextScope outer({L"1", false, std::nullopt});
        {
            const EditorTextScope inner({L"2", false, std::nullopt});
        }
        QCOMPARE(EditorTextScope::Take().text, std::wstring(L"1"));
    }
    {
        const EditorTextScope untaken({L"3", false, std::nullopt});
    }

    QCOMPARE(EditorTextScope::Take().text, std::wstring());
}

void ActionInputTest::aValueIsToldInModelUnits_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<InputState>("field");
    QTest::addColumn<bool>("isCommitted");
    QTest::addColumn<double>("value");
    constexpr double Shown = 2.0;
    constexpr double Inches = 50.8;

    QTest::newRow("length, Tab") << int(ActionViewInput::LengthEntered) << InputState::IS_Length
                                 << false << Inches;
    QTest::newRow("length") << int(ActionViewInput::LengthCommitted) << InputState::IS_Length
                            << true << Inches;
    QTest::newRow("angle, Tab") << int(ActionViewInput::AngleEntered) << InputState::IS_Angle
                                << false << Shown;
    QTest::newRow("angle") << int(ActionViewInput::AngleCommitted) << InputState::IS_Angle << true
                           << Shown;
    QTest::newRow("radius") << int(ActionViewInput::RadiusCommitted) << InputState::IS_Radius
                            << true << Inches;
    QTest::newRow("radius beside an angle") << int(ActionViewInput::RadiusWithAngleCommitted)
                                            << InputState::IS_Radius << true << Inches;
    QTest::newRow("central angle") << int(ActionViewInput::CentralAngleCommitted)
                                   << InputState::IS_CentralAngle << true << Shown;
    QTest::newRow("width, Tab") << int(ActionViewInput::WidthEntered) << InputState::IS_Width
                                << false << Inches;
    QTest::newRow("width") << int(ActionViewInput::WidthCommitted) << InputState::IS_Width << true
                           << Inches;
    QTest::newRow("height, Tab") << int(ActionViewInput::HeightEntered) << InputState::IS_Height
                                 << false << Inches;
    QTest::newRow("height") << int(ActionViewInput::HeightCommitted) << InputState::IS_Height
                            << true << Inches;
}

void ActionInputTest::aValueIsToldInModelUnits()
{
    QFETCH(int, kind);
    ActionFixture f;
    f.AddInteractive("Line");
    LengthUnit::SetCurrent(LengthUnit::Inch());
    f.loop.Post([&] { ActionManager::ProcessViewInput(&f.view, {kind, 2.0, {}, {}}); });

    f.Choose("Line");

    LengthUnit::SetCurrent(LengthUnit::Millimetre());
    const TypedValue& seen = f.scripts["Line"].typed;
    QTEST(seen.field, "field");
    QTEST(seen.isCommitted, "isCommitted");
    QTEST(seen.value, "value");
}

void ActionInputTest::anUnknownKindIsOfNoField()
{
    ActionFixture f;
    f.AddInteractive("Line");
    f.loop.Post([&] { ActionManager::ProcessViewInput(&f.view, {3, 2.0, {}, {}}); });

    f.Choose("Line");

    QVERIFY(f.Has("Line.input"));
    QCOMPARE(f.scripts["Line"].typed.field, InputState::IS_None);
}

void ActionInputTest::theInputMayBelongToAHandlerThatIsDropped()
{
    ActionFixture f;
    f.AddInteractive("Line");
    auto pInput = std::make_unique<ActionViewInput>();
    pInput->text = L"a text that is too long to be kept in the string itself";
    const std::wstring text = pInput->text;
    std::wstring seen;
    f.scripts["Line"].onViewInput = [&](const ActionViewInput& input) {
        pInput.reset();
        seen = input.text;
    };
    f.loop.Post([&] { ActionManager::ProcessViewInput(&f.view, *pInput); });

    f.Choose("Line");

    QCOMPARE(seen, text);
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::ActionInputTest);
#include "ActionInputTest.moc"
