#include "Desktop/DesktopTest.h"

#include <cmath>

namespace vesk
{

/// Lengths and angles as people type them, with real keys.
class TypedValueTest : public DesktopTest
{
    Q_OBJECT

private slots:
    void clearTextMakesTheVeryLine_data();
    void clearTextMakesTheVeryLine();
    void unclearTextIsRefusedWithItsReason_data();
    void unclearTextIsRefusedWithItsReason();
    void treeTellsWhatTheTextComesTo();
    void formulaIsTakenAtFullSpeedWithTab();
    void tabBeforeTheFirstDigitLosesNone();
    void unitAfterABlankIsToldAndTakenBack_data();
    void unitAfterABlankIsToldAndTakenBack();
    void shiftTabTakesTheLengthAndGoesOn();
    void emptiedFieldFollowsTheCursorAgain();
    void editorGrowsWithItsText();
    void stripCommandIsOnTheRibbonAndLeavesTheTextAlone();
};

void TypedValueTest::clearTextMakesTheVeryLine_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("millimetres");
    QTest::newRow("centimetres") << "10cm" << 100.0;
    QTest::newRow("decimal comma") << "3,5" << 3.5;
    QTest::newRow("point first") << ".5" << 0.5;
    QTest::newRow("comma first") << ",5" << 0.5;
    QTest::newRow("root") << "sqrt(2)*50" << std::sqrt(2.0) * 50.0;
    QTest::newRow("parentheses first") << "(3+4)*2" << 14.0;
    QTest::newRow("sum") << "20+2" << 22.0;
    QTest::newRow("half an inch") << "1/2in" << 12.7;
    QTest::newRow("feet and inches") << "10'6\"" << 3200.4;
    QTest::newRow("sum of lengths") << "1m+5cm" << 1050.0;
    QTest::newRow("feet, blank, inches") << "10' 6\"" << 3200.4;
    QTest::newRow("half, blank, an inch") << "1/2 in" << 12.7;
}

void TypedValueTest::clearTextMakesTheVeryLine()
{
    QFETCH(QString, text);
    QFETCH(double, millimetres);

    QVERIFY(Session().BeginLine());
    QVERIFY(Session().MoveInView(QPointF(80.0, 40.0)));
    QVERIFY(Session().Type(text, {"Return"}));

    QVERIFY(DrawsOneLine(millimetres));
}

void TypedValueTest::unclearTextIsRefusedWithItsReason_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("thousands or decimals") << "1,000";
    QTest::newRow("both signs") << "1.000,5";
    QTest::newRow("degrees") << "30d";
    QTest::newRow("hexadecimal") << "0x10";
    QTest::newRow("mixed") << "1m+5";
    QTest::newRow("assignment") << "a=5";
    QTest::newRow("feet less inches") << "10'-6\"";
}

void TypedValueTest::unclearTextIsRefusedWithItsReason()
{
    QFETCH(QString, text);

    QVERIFY(Session().BeginLine());
    QVERIFY(Session().MoveInView(QPointF(80.0, 40.0)));
    QVERIFY(Session().Type(text, {"Return"}));
    QVERIFY(Session().WaitFor([&](const UiTree& tree) {
        const std::optional<UiEditor> editor = tree.FindEditor();
        return editor && editor->selectedText == text && !editor->message.isEmpty() &&
               !editor->value.has_value();
    }));
    QCOMPARE(Session().Tree().GetEntityCount(), 0);

    QVERIFY(Session().Type("2cm", {"Return"}));

    QVERIFY(DrawsOneLine(20.0));
}

void TypedValueTest::treeTellsWhatTheTextComesTo()
{
    QVERIFY(Session().Click("Sketcher.Unit.cm"));
    QVERIFY(Session().BeginLine());
    QVERIFY(Session().MoveInView(QPointF(80.0, 40.0)));

    QVERIFY(Session().Type("2*1m"));

    QVERIFY(Session().WaitFor([](const UiTree& tree) {
        const std::optional<UiEditor> editor = tree.FindEditor();
        return editor && editor->text == "2*1m" && editor->value == 200.0 &&
               editor->message.isEmpty() && editor->hasFocus;
    }));
    QVERIFY(Session().Type("+"));
    QVERIFY(Session().WaitFor([](const UiTree& tree) {
        const std::optional<UiEditor> editor = tree.FindEditor();
        return editor && editor->text == "2*1m+" && !editor->value.has_value();
    }));
}

void TypedValueTest::formulaIsTakenAtFullSpeedWithTab()
{
    QVERIFY(Session().BeginLine());
    QVERIFY(Session().Type("2*3cm", QStringList{"Tab"} + InputDriver::Text("90/4+7.5") +
                                        QStringList{"Return"}));

    QVERIFY(DrawsOneLine(60.0, 30.0));
}

void TypedValueTest::tabBeforeTheFirstDigitLosesNone()
{
    QVERIFY(Session().BeginLine());
    QVERIFY(Session().MoveInView(QPointF(80.0, 40.0)));
    QVERIFY(Session().Input().Keys(QStringList{"Tab"} + InputDriver::Text("42.25") +
                                   QStringList{"Return"}));

    QVERIFY(DrawsOneLine(42.25));
}

void TypedValueTest::unitAfterABlankIsToldAndTakenBack_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("centimetres") << "10 cm";
    QTest::newRow("inches") << "10 in";
    QTest::newRow("inches by their sign") << "10 \"";
}

void TypedValueTest::unitAfterABlankIsToldAndTakenBack()
{
    QFETCH(QString, text);

    QVERIFY(Session().BeginLine());
    QVERIFY(Session().MoveInView(QPointF(80.0, 40.0)));
    QVERIFY(Session().Type(text, {"Return"}));
    QVERIFY(Session().WaitFor(
        [](const UiTree& tree) { return tree.GetHint().contains(QStringLiteral("空格")); }));
    QVERIFY(Session().WaitForEntities(1));
    QVERIFY(!Session().Tree().FindEditor());
    QCOMPARE(Session().Tree().GetAction(), QString("Sketcher.Line"));

    QVERIFY(Session().Type("", {"ctrl+z"}));
    QVERIFY(Session().WaitForEntities(0));
    QVERIFY(!Session().Tree().GetHint().contains(QStringLiteral("空格")));
    QVERIFY(Session().Type("10cm", {"Return"}));

    QVERIFY(DrawsOneLine(100.0));
}

void TypedValueTest::shiftTabTakesTheLengthAndGoesOn()
{
    QVERIFY(Session().BeginLine());
    QVERIFY(Session().Type("60", QStringList{"shift+Tab"} + InputDriver::Text("30") +
                                     QStringList{"Return"}));

    QVERIFY(DrawsOneLine(60.0, 30.0));
}

void TypedValueTest::emptiedFieldFollowsTheCursorAgain()
{
    QVERIFY(Session().BeginLine());
    QVERIFY(Session().MoveInView(QPointF(80.0, 40.0)));
    QVERIFY(Session().Type("50", {"Tab", "Tab"}));
    QVERIFY(Session().WaitFor([](const UiTree& tree) {
        const std::optional<UiEditor> editor = tree.FindEditor();
        return editor && editor->state == 1 && editor->locked == QVector<int>{1, 2};
    }));

    QVERIFY(Session().Type("", {"BackSpace"}));
    QVERIFY(Session().WaitFor([](const UiTree& tree) {
        const std::optional<UiEditor> editor = tree.FindEditor();
        return editor && editor->text.isEmpty() && editor->locked == QVector<int>{2};
    }));
    QVERIFY(Session().Type("", {"Return"}));
    QVERIFY(Session().WaitFor([](const UiTree& tree) {
        const std::optional<UiEditor> editor = tree.FindEditor();
        return editor && !editor->message.isEmpty();
    }));
    QCOMPARE(Session().Tree().GetEntityCount(), 0);
}

void TypedValueTest::editorGrowsWithItsText()
{
    QVERIFY(Session().BeginLine());
    QVERIFY(Session().MoveInView(QPointF(80.0, 40.0)));
    QVERIFY(Session().Type("7"));
    QVERIFY(Session().WaitForEditor("7"));
    const int opened = Session().Tree().FindEditor()->rect.width();

    QVERIFY(Session().Type("000000000/1000000000000000"));

    QVERIFY(Session().WaitFor([opened](const UiTree& tree) {
        const std::optional<UiEditor> editor = tree.FindEditor();
        return editor && editor->text == "7000000000/1000000000000000" &&
               editor->rect.width() > 2 * opened && tree.FindView()->rect.contains(editor->rect);
    }));
}

void TypedValueTest::stripCommandIsOnTheRibbonAndLeavesTheTextAlone()
{
    const std::optional<UiControl> button = Session().Tree().FindControl("Sketcher.KeyStrip");
    QVERIFY(button && button->isVisible && button->isEnabled);

    QVERIFY(Session().Click("Sketcher.KeyStrip"));
    QVERIFY(Session().BeginLine());
    QVERIFY(Session().MoveInView(QPointF(80.0, 40.0)));
    QVERIFY(Session().Type("10cm", {"Return"}));

    QVERIFY(DrawsOneLine(100.0));
}

}

VESK_TESTS_WITHOUT_WINDOWS(vesk::TypedValueTest);
#include "TypedValueTest.moc"
