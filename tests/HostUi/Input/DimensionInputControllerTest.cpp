#include "HostUi/InputFixture.h"

#include "Dimension/LengthUnit.h"
#include "HostUi/QtText.h"
#include "Support/TestValues.h"

using namespace vesk;
using namespace vesk::test;

/// What a handler receives of what users type.
class DimensionInputControllerTest final : public QObject
{
    Q_OBJECT

private slots:
    void plainNumberReachesTheHandlerUntouched()
    {
        InputFixture f(Linear());

        f.Type("007.5").Press(Qt::Key_Return);

        QCOMPARE(f.script.TakenTexts(), QStringList{"007.5"});
        QCOMPARE(ToQString(f.script.taken[0].typed.text), QString("007.5"));
    }

    void clearTextReachesTheHandlerAsItsNumber_data()
    {
        QTest::addColumn<int>("key");

        QTest::newRow("Return") << int(Qt::Key_Return);
        QTest::newRow("Enter") << int(Qt::Key_Enter);
        QTest::newRow("Tab") << int(Qt::Key_Tab);
        QTest::newRow("Shift+Tab") << int(Qt::Key_Backtab);
    }

    void clearTextReachesTheHandlerAsItsNumber()
    {
        QFETCH(int, key);
        InputFixture f(Linear());

        f.Type("10cm").Press(key);

        QCOMPARE(f.script.TakenTexts(), QStringList{"100"});
        QCOMPARE(ToQString(f.script.taken[0].typed.text), QString("10cm"));
        QVERIFY(!f.script.taken[0].typed.isUnchanged);
    }

    void modelValueIsHandedOverBesideTheText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("millimetres");

        QTest::newRow("plain number") << "1.2" << 30.48;
        QTest::newRow("formula") << "1+0.3" << 33.02;
        QTest::newRow("unit") << "1mm" << 1.0;
    }

    void modelValueIsHandedOverBesideTheText()
    {
        QFETCH(QString, text);
        QFETCH(double, millimetres);
        InputFixture f(Linear());
        LengthUnit::SetCurrent(LengthUnit::Inch());

        f.Type(text).Press(Qt::Key_Return);

        LengthUnit::SetCurrent(LengthUnit::Millimetre());
        QCOMPARE(f.script.taken.size(), std::size_t(1));
        QVERIFY(f.script.taken[0].typed.modelValue == millimetres);
    }

    void valueThatTheActionCannotUseIsRefusedInPlace_data()
    {
        QTest::addColumn<QString>("text");

        QTest::newRow("number") << "7";
        QTest::newRow("formula") << "3.5*2";
    }

    void valueThatTheActionCannotUseIsRefusedInPlace()
    {
        QFETCH(QString, text);
        InputFixture f(Linear(), &MakeLinear, [](InputState field, double value) {
            return field == InputState::IS_Length && value == 7.0 ? L"not seven" : L"";
        });

        f.Type(text).Press(Qt::Key_Return);

        QCOMPARE(f.script.taken.size(), std::size_t(0));
        QCOMPARE(f.Editor()->selectedText(), text);
        QCOMPARE(f.controller.GetMessage(), QString("not seven"));
        QCOMPARE(f.Note("InputRefusal"), QString("not seven"));
        f.Type("8").Press(Qt::Key_Return);
        QCOMPARE(f.script.taken.size(), std::size_t(1));
        QCOMPARE(f.controller.GetMessage(), QString());
    }

    void actionIsAskedAboutClearValuesOfTheRangeOnly_data()
    {
        QTest::addColumn<QString>("text");

        QTest::newRow("unclear") << "1,000";
        QTest::newRow("out of range") << "0";
    }

    void actionIsAskedAboutClearValuesOfTheRangeOnly()
    {
        QFETCH(QString, text);
        int askedCount = 0;
        InputFixture f(Linear(), &MakeLinear, [&askedCount](InputState, double) {
            ++askedCount;
            return std::wstring();
        });

        f.Type(text).Press(Qt::Key_Return);

        QCOMPARE(askedCount, 0);
        QVERIFY(!f.controller.GetMessage().isEmpty());
    }

    void unclearTextIsRefusedInPlace_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("key");

        QTest::newRow("thousands or decimals") << "1,000" << int(Qt::Key_Return);
        QTest::newRow("with Tab") << "1,000" << int(Qt::Key_Tab);
        QTest::newRow("with Shift+Tab") << "1,000" << int(Qt::Key_Backtab);
        QTest::newRow("number out of range with Space") << "0" << int(Qt::Key_Space);
        QTest::newRow("with Enter") << "1,000" << int(Qt::Key_Enter);
        QTest::newRow("no number") << "abc" << int(Qt::Key_Return);
        QTest::newRow("formula out of range") << "5-5" << int(Qt::Key_Return);
        QTest::newRow("number out of range") << "0" << int(Qt::Key_Return);
    }

    void unclearTextIsRefusedInPlace()
    {
        QFETCH(QString, text);
        QFETCH(int, key);
        InputFixture f(Linear());

        f.Type(text).Press(key);

        QCOMPARE(f.script.taken.size(), std::size_t(0));
        QCOMPARE(f.Editor()->text(), text);
        QCOMPARE(f.Editor()->selectedText(), text);
        QVERIFY(!f.controller.GetMessage().isEmpty());
        QCOMPARE(f.Note("InputRefusal"), f.controller.GetMessage());
    }

    void nextKeyTakesTheRefusalAway()
    {
        InputFixture f(Linear());

        f.Type("1,000").Press(Qt::Key_Return).Type("7");

        QCOMPARE(f.Editor()->text(), QString("7"));
        QCOMPARE(f.controller.GetMessage(), QString());
        QCOMPARE(f.Note("InputRefusal"), QString());
    }

    void endOfTheInputTakesTheRefusalAway()
    {
        InputFixture f(Linear());

        f.Type("1,000").Press(Qt::Key_Return);
        TemporaryDimensionMgr::GetInstance()->EndInput();
        f.Type("5");

        QCOMPARE(f.controller.GetMessage(), QString());
        QCOMPARE(f.Note("InputRefusal"), QString());
    }

    void textThatIsTakenAsATextIsLeftAlone()
    {
        TypingScript script = Linear();
        script.isRawTextInput = true;
        InputFixture f(script);

        f.Type("1,000cm").Press(Qt::Key_Return);

        QCOMPARE(f.script.TakenTexts(), QStringList{"1,000cm"});
        QVERIFY(!f.script.taken[0].typed.modelValue.has_value());
        QCOMPARE(f.controller.GetMessage(), QString());
    }

    void commaAloneIsATextThatSomebodyTyped()
    {
        TypingScript script = Linear();
        script.isRawTextInput = true;
        InputFixture f(script);

        f.Type(",").Press(Qt::Key_Return);

        QCOMPARE(f.script.TakenTexts(), QStringList{","});
        QVERIFY(!f.script.taken[0].typed.isUnchanged);
    }

    void spaceIsABlankWhereItTakesNoValue()
    {
        InputFixture f(CentralAngle(), &MakeCentralAngle);

        f.Type("(").Press(Qt::Key_Space, " ").Type("5)");

        QCOMPARE(f.script.taken.size(), std::size_t(0));
        QCOMPARE(f.Editor()->text(), QString("( 5)"));
        QCOMPARE(f.controller.GetMessage(), QString());
    }

    void tabIsNotJudgedWhereItTakesNoValue_data() { tabWithoutAnInputIsKeptFromTheWindow_data(); }

    void tabIsNotJudgedWhereItTakesNoValue()
    {
        QFETCH(int, key);
        TypingScript script;
        script.state = InputState::IS_Radius;
        InputFixture f(script, &MakeRadius);

        f.Type("1,000").Press(key);

        QCOMPARE(f.script.taken.size(), std::size_t(0));
        QCOMPARE(f.controller.GetMessage(), QString());
    }

    void degreesAreClearInAnAngle()
    {
        InputFixture f(CentralAngle(), &MakeCentralAngle);

        f.Type("90d/4").Press(Qt::Key_Return);

        QCOMPARE(f.script.TakenTexts(), QStringList{"22.5"});
    }

    void shownValueIsConfirmedAsItIs()
    {
        InputFixture f(Linear());

        f.PressShiftComma().Press(Qt::Key_Return);

        QCOMPARE(f.script.TakenTexts(), QStringList{f.script.currentValue});
        QVERIFY(f.script.taken[0].typed.isUnchanged);
    }

    void valueShownAfterTabIsConfirmedAsItIs()
    {
        InputFixture f(Linear());

        f.Type("2*3").Press(Qt::Key_Tab).Press(Qt::Key_Return);

        QCOMPARE(f.script.taken.size(), std::size_t(2));
        QVERIFY(!f.script.taken[0].typed.isUnchanged);
        QCOMPARE(f.script.taken[1].text, f.script.currentValue);
        QVERIFY(f.script.taken[1].typed.isUnchanged);
    }

    void shownValueThatSomebodyTypedInIsTheirs()
    {
        InputFixture f(Linear());

        f.PressShiftComma().Type("+2").Press(Qt::Key_Return);

        QCOMPARE(f.script.TakenTexts(), QStringList{"52"});
        QVERIFY(!f.script.taken[0].typed.isUnchanged);
    }

    void characterOpensTheInputWithItself_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("number");

        QTest::newRow("parenthesis") << "(2+3)"
                                     << "5";
        QTest::newRow("letter") << "sqrt(4)"
                                << "2";
        QTest::newRow("sign") << "+(7)"
                              << "7";
        QTest::newRow("comma") << ",5"
                               << "0.5";
    }

    void characterOpensTheInputWithItself()
    {
        QFETCH(QString, text);
        QFETCH(QString, number);
        InputFixture f(Linear());

        f.Type(text).Press(Qt::Key_Return);

        QCOMPARE(f.script.TakenTexts(), QStringList{number});
        QCOMPARE(ToQString(f.script.taken[0].typed.text), text);
        QVERIFY(!f.script.taken[0].typed.isUnchanged);
    }

    void tabWithoutAnInputIsKeptFromTheWindow_data()
    {
        QTest::addColumn<int>("key");

        QTest::newRow("Tab") << int(Qt::Key_Tab);
        QTest::newRow("Shift+Tab") << int(Qt::Key_Backtab);
    }

    void tabWithoutAnInputIsKeptFromTheWindow()
    {
        QFETCH(int, key);
        InputFixture f(Linear());
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);

        QVERIFY(f.controller.OnViewKey(press));
        ActionManager::Reset();
        QVERIFY(!f.controller.OnViewKey(press));
    }

    void keyThatTheEditorLeavesIsKeptFromTheWindow_data()
    {
        tabWithoutAnInputIsKeptFromTheWindow_data();
        QTest::newRow("F5") << int(Qt::Key_F5);
    }

    void keyThatTheEditorLeavesIsKeptFromTheWindow()
    {
        QFETCH(int, key);
        InputFixture f(CentralAngle(), &MakeCentralAngle);
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);

        f.Type("5");
        QVERIFY(f.controller.OnViewKey(press));

        QVERIFY(press.isAccepted());
        QCOMPARE(f.Editor()->text(), QString("5"));
    }

    void clickTakesWhatIsClearOnly()
    {
        InputFixture f(Linear());

        f.Type("1,000");
        QVERIFY(!f.controller.Commit());
        f.Type("10cm");
        QVERIFY(f.controller.Commit());

        QCOMPARE(f.script.TakenTexts(), QStringList{"100"});
    }

    void valueIsWhatTheTextComesTo_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("hasValue");
        QTest::addColumn<double>("value");

        QTest::newRow("plain") << "12.5" << true << 12.5;
        QTest::newRow("formula") << "20+2" << true << 22.0;
        QTest::newRow("out of range") << "5e12" << true << 5e12;
        QTest::newRow("unclear") << "1,000" << false << 0.0;
        QTest::newRow("unfinished") << "20+" << false << 0.0;
    }

    void valueIsWhatTheTextComesTo()
    {
        QFETCH(QString, text);
        QFETCH(bool, hasValue);
        QFETCH(double, value);
        InputFixture f(Linear());

        f.Type(text);

        QCOMPARE(f.controller.GetValue().has_value(), hasValue);
        QCOMPARE(f.controller.GetValue().value_or(0.0), value);
    }

    void valueIsInTheUnitShown()
    {
        LengthUnit::SetCurrent(LengthUnit::Centimetre());
        InputFixture f(Linear());

        f.Type("1m");

        const std::optional<double> value = f.controller.GetValue();
        LengthUnit::SetCurrent(LengthUnit::Millimetre());
        QCOMPARE(value.value_or(0.0), 100.0);
    }

    void thereIsNoValueWithoutAnInput()
    {
        const InputFixture f(Linear());

        QVERIFY(!f.controller.GetValue().has_value());
        QCOMPARE(f.controller.GetMessage(), QString());
    }
};

VESK_TESTS(DimensionInputControllerTest);
#include "DimensionInputControllerTest.moc"
