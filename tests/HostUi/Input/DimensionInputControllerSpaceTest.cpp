#include "HostUi/InputFixture.h"

#include "HostUi/QtText.h"
#include "Support/TestValues.h"

#include <QMouseEvent>

using namespace vesk;
using namespace vesk::test;

namespace
{

bool IsToldOfTheBlank(const InputFixture& f)
{
    return ToQString(f.Hint()).contains("空格");
}

}

/// What Space does, and what happens to a unit typed after it.
class DimensionInputControllerSpaceTest final : public QObject
{
    Q_OBJECT

private slots:
    void plainNumberIsTakenAtOnce()
    {
        InputFixture f(Linear());

        f.Type("10").Press(Qt::Key_Space, " ");

        QCOMPARE(f.script.TakenTexts(), QStringList{"10"});
        QVERIFY(!TemporaryDimensionMgr::GetInstance()->IsInputting());
        QVERIFY(!IsToldOfTheBlank(f));
    }

    void blankIsABlankEverywhereIfItIsSetSo()
    {
        InputFixture f(Linear());
        f.controller.SetSpaceCommitting(false);

        f.Type("10").Press(Qt::Key_Space, " ");

        QCOMPARE(f.script.taken.size(), std::size_t(0));
        QCOMPARE(f.Editor()->text(), QString("10 "));
        QVERIFY(!f.Note("InputKeys").contains("空格"));
        f.Press(Qt::Key_Return);
        QCOMPARE(f.script.taken.size(), std::size_t(1));
        QVERIFY(f.script.taken[0].typed.modelValue == 10.0);
    }

    void unitAfterABlankBelongsToTheValueIfItIsSetSo()
    {
        InputFixture f(Linear());
        f.controller.SetSpaceCommitting(false);

        f.Type("10").Press(Qt::Key_Space, " ").Type("cm").Press(Qt::Key_Return);

        QCOMPARE(f.script.taken.size(), std::size_t(1));
        QVERIFY(f.script.taken[0].typed.modelValue == 100.0);
        QVERIFY(!IsToldOfTheBlank(f));
    }

    void keyStripFollowsTheSettingAtOnce()
    {
        InputFixture f(Linear());
        f.Type("10");
        QVERIFY(f.Note("InputKeys").contains("空格"));

        f.controller.SetSpaceCommitting(false);

        QVERIFY(!f.Note("InputKeys").contains("空格"));
    }

    void blankIsABlankAfterAnyOtherText_data()
    {
        QTest::addColumn<QString>("text");

        QTest::newRow("feet") << "10'";
        QTest::newRow("half a formula") << "2*";
        QTest::newRow("formula") << "20+2";
        QTest::newRow("fraction") << "1/2";
        QTest::newRow("unclear") << "1,000";
        QTest::newRow("no number") << "abc";
    }

    void blankIsABlankAfterAnyOtherText()
    {
        QFETCH(QString, text);
        InputFixture f(Linear());

        f.Type(text).Press(Qt::Key_Space, " ");

        QCOMPARE(f.script.taken.size(), std::size_t(0));
        QCOMPARE(f.Editor()->text(), text + ' ');
        QCOMPARE(f.controller.GetMessage(), QString());
    }

    void textWithABlankIsTakenAsAWhole_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("number");

        QTest::newRow("feet and inches") << "10' 6\""
                                         << "3200.4";
        QTest::newRow("half an inch") << "1/2 in"
                                      << "12.7";
        QTest::newRow("formula") << "2* 3"
                                 << "6";
        QTest::newRow("blank at the end") << "10cm "
                                          << "100";
    }

    void textWithABlankIsTakenAsAWhole()
    {
        QFETCH(QString, text);
        QFETCH(QString, number);
        InputFixture f(Linear());

        f.Type(text).Press(Qt::Key_Return);

        QCOMPARE(f.script.TakenTexts(), QStringList{number});
    }

    void unitAfterTheBlankIsDroppedAndTold_data()
    {
        QTest::addColumn<QString>("unit");

        QTest::newRow("centimetres") << "cm";
        QTest::newRow("metres") << "m";
        QTest::newRow("inches in full") << "inch";
        QTest::newRow("inches by their sign") << "\"";
        QTest::newRow("feet by their sign") << "'";
        QTest::newRow("degrees") << "d";
        QTest::newRow("capitals") << "MM";
    }

    void unitAfterTheBlankIsDroppedAndTold()
    {
        QFETCH(QString, unit);
        InputFixture f(Linear());

        f.Type("10 ").Type(unit);

        QCOMPARE(f.script.TakenTexts(), QStringList{"10"});
        QVERIFY(!TemporaryDimensionMgr::GetInstance()->IsInputting());
        QVERIFY(IsToldOfTheBlank(f));
        QVERIFY(ToQString(f.Hint()).contains(unit));
    }

    void nextValueFollowsADroppedUnit()
    {
        InputFixture f(Linear());

        f.Type("10 m25").Press(Qt::Key_Return);

        QCOMPARE(f.script.TakenTexts(), (QStringList{"10", "25"}));
    }

    void lettersOfNoUnitAreTypedInTheirOrder_data()
    {
        QTest::addColumn<QString>("text");

        QTest::newRow("one was kept") << "cos(0d)*7";
        QTest::newRow("none was kept") << "sqrt(4)";
        QTest::newRow("digit") << "25";
        QTest::newRow("comma") << ",5";
    }

    void lettersOfNoUnitAreTypedInTheirOrder()
    {
        QFETCH(QString, text);
        InputFixture f(Linear());

        f.Type("10 ").Type(text).Press(Qt::Key_Return);

        QCOMPARE(f.script.taken.size(), std::size_t(2));
        QCOMPARE(ToQString(f.script.taken[1].typed.text), text);
        QVERIFY(!IsToldOfTheBlank(f));
    }

    void letterIsKeptUntilItIsClear()
    {
        InputFixture f(Linear());

        f.Type("10 c");

        QVERIFY(!TemporaryDimensionMgr::GetInstance()->IsInputting());
        QVERIFY(!IsToldOfTheBlank(f));
    }

    void anyOtherKeyDecides_data()
    {
        QTest::addColumn<int>("key");

        QTest::newRow("Return") << int(Qt::Key_Return);
        QTest::newRow("Escape") << int(Qt::Key_Escape);
        QTest::newRow("Tab") << int(Qt::Key_Tab);
        QTest::newRow("arrow") << int(Qt::Key_Left);
        QTest::newRow("function key") << int(Qt::Key_F5);
    }

    void anyOtherKeyDecides()
    {
        QFETCH(int, key);
        InputFixture f(Linear());

        f.Type("10 c").Press(key);

        QCOMPARE(f.Editor()->text(), QString("c"));
        QCOMPARE(f.script.taken.size(), std::size_t(1));
        QVERIFY(TemporaryDimensionMgr::GetInstance()->IsInputting());
    }

    void shortcutDecides()
    {
        InputFixture f(Linear());
        QKeyEvent undo(QEvent::ShortcutOverride, Qt::Key_Z, Qt::ControlModifier);

        f.Type("10 c");
        QCoreApplication::sendEvent(&f.host.view, &undo);

        QCOMPARE(f.Editor()->text(), QString("c"));
    }

    void letterItselfIsNoShortcut()
    {
        InputFixture f(Linear());
        QKeyEvent letter(QEvent::ShortcutOverride, Qt::Key_M, Qt::NoModifier, "m");

        f.Type("10 c");
        QCoreApplication::sendEvent(&f.host.view, &letter);
        f.Type("m");

        QVERIFY(!TemporaryDimensionMgr::GetInstance()->IsInputting());
        QVERIFY(IsToldOfTheBlank(f));
    }

    void clickAnywhereDecidesBeforeItIsHeard()
    {
        InputFixture f(Linear());
        QMouseEvent click(QEvent::MouseButtonPress, QPointF(1, 1),
                          f.host.window.mapToGlobal(QPoint(1, 1)), Qt::LeftButton, Qt::LeftButton,
                          Qt::NoModifier);

        f.Type("10 c");
        QCoreApplication::sendEvent(&f.host.window, &click);

        QCOMPARE(f.Editor()->text(), QString("c"));
        QVERIFY(TemporaryDimensionMgr::GetInstance()->IsInputting());
    }

    void shiftAloneDecidesNothing_data()
    {
        QTest::addColumn<int>("key");

        QTest::newRow("Shift") << int(Qt::Key_Shift);
        QTest::newRow("Ctrl") << int(Qt::Key_Control);
        QTest::newRow("Caps Lock") << int(Qt::Key_CapsLock);
        QTest::newRow("AltGr") << int(Qt::Key_AltGr);
    }

    void shiftAloneDecidesNothing()
    {
        QFETCH(int, key);
        InputFixture f(Linear());
        QKeyEvent override(QEvent::ShortcutOverride, key, Qt::NoModifier);

        f.Type("10 c");
        QCoreApplication::sendEvent(&f.host.view, &override);
        f.Press(key).Type("m");

        QVERIFY(!TemporaryDimensionMgr::GetInstance()->IsInputting());
        QVERIFY(IsToldOfTheBlank(f));
    }

    void noUnitIsAwaitedAfterOtherKeys_data()
    {
        QTest::addColumn<int>("key");

        QTest::newRow("Return") << int(Qt::Key_Return);
        QTest::newRow("Enter") << int(Qt::Key_Enter);
    }

    void noUnitIsAwaitedAfterOtherKeys()
    {
        QFETCH(int, key);
        InputFixture f(Linear());

        f.Type("10").Press(key).Type("c");

        QCOMPARE(f.Editor()->text(), QString("c"));
        QVERIFY(TemporaryDimensionMgr::GetInstance()->IsInputting());
    }

    void noUnitIsAwaitedAfterATextThatIsTakenAsAText()
    {
        TypingScript script = Linear();
        script.isRawTextInput = true;
        InputFixture f(script);

        f.Type("10 c");

        QCOMPARE(f.script.taken.size(), std::size_t(1));
        QCOMPARE(f.Editor()->text(), QString("c"));
        QVERIFY(TemporaryDimensionMgr::GetInstance()->IsInputting());
    }

    void stripNamesSpaceWhereItTakes()
    {
        InputFixture f(Linear());

        QVERIFY(f.Type("10").Note("InputKeys").contains("空格"));
        QVERIFY(!f.Type("+").Note("InputKeys").contains("空格"));
        QVERIFY(!f.Type("2").Note("InputKeys").contains("空格"));
    }

    void stripNamesNoSpaceWhereItIsABlank()
    {
        InputFixture f(CentralAngle(), &MakeCentralAngle);

        QVERIFY(!f.Type("10").Note("InputKeys").contains("空格"));
    }
};

VESK_TESTS(DimensionInputControllerSpaceTest);
#include "DimensionInputControllerSpaceTest.moc"
