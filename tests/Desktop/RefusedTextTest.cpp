#include "Desktop/DesktopTest.h"

namespace vesk
{

/// A text that makes no sense draws nothing and stays for another try.
class RefusedTextTest : public DesktopTest
{
    Q_OBJECT

private slots:
    void refusedTextStaysSelectedAndIsReplaced_data();
    void refusedTextStaysSelectedAndIsReplaced();
    void emptyTextIsRefused();
    void refusedAngleStaysInItsField();
    void blankAfterARefusedTextReplacesIt();
};

void RefusedTextTest::refusedTextStaysSelectedAndIsReplaced_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("letters") << "abc";
    QTest::newRow("no exponent") << "5e";
    QTest::newRow("beyond the range") << "1e308";
    QTest::newRow("beyond a double") << "1e999";
    QTest::newRow("not a number") << "nan";
    QTest::newRow("two points") << "1..2";
    QTest::newRow("zero") << "0";
    QTest::newRow("negative") << "-5";
    QTest::newRow("just above the greatest length") << "1000000000.5";
    QTest::newRow("just below the least length") << "0.00000099";
}

void RefusedTextTest::refusedTextStaysSelectedAndIsReplaced()
{
    QFETCH(QString, text);

    QVERIFY(Session().BeginLine());
    QVERIFY(Session().MoveInView(QPointF(80.0, 40.0)));
    QVERIFY(Session().Type(text, {"Return"}));

    QVERIFY(Session().WaitFor([&](const UiTree& tree) {
        const std::optional<UiEditor> editor = tree.FindEditor();
        return editor && editor->isVisible && editor->text == text && editor->selectedText == text;
    }));
    QCOMPARE(Session().Tree().GetEntityCount(), 0);
    QVERIFY(Session().Type("7"));
    QVERIFY(Session().WaitForEditor("7"));
    QVERIFY(Session().Type("", {"Return"}));
    QVERIFY(DrawsOneLine(7.0));
}

void RefusedTextTest::emptyTextIsRefused()
{
    QVERIFY(Session().BeginLine());
    QVERIFY(Session().MoveInView(QPointF(80.0, 40.0)));
    QVERIFY(Session().Type("5", {"BackSpace", "Return"}));
    QVERIFY(Session().WaitForEditor(""));

    QVERIFY(Session().Type("8", {"Return"}));

    QVERIFY(DrawsOneLine(8.0));
}

void RefusedTextTest::refusedAngleStaysInItsField()
{
    QVERIFY(Session().BeginLine());
    QVERIFY(Session().MoveInView(QPointF(80.0, 40.0)));
    QVERIFY(Session().Type("50", {"Tab", "4", "0", "0", "Return"}));
    QVERIFY(Session().WaitFor([](const UiTree& tree) {
        const std::optional<UiEditor> editor = tree.FindEditor();
        return editor && editor->state == 2 && editor->selectedText == "400";
    }));
    QCOMPARE(Session().Tree().GetEntityCount(), 0);

    QVERIFY(Session().Type("-45", {"Return"}));

    QVERIFY(DrawsOneLine(50.0, -45.0));
}

void RefusedTextTest::blankAfterARefusedTextReplacesIt()
{
    QVERIFY(Session().BeginLine());
    QVERIFY(Session().MoveInView(QPointF(80.0, 40.0)));
    QVERIFY(Session().Type("1,000", {"Return"}));
    QVERIFY(Session().WaitFor([](const UiTree& tree) {
        const std::optional<UiEditor> editor = tree.FindEditor();
        return editor && editor->selectedText == "1,000";
    }));

    QVERIFY(Session().Type(" 2*4 ", {"Return"}));

    QVERIFY(DrawsOneLine(8.0));
}

}

VESK_TESTS_WITHOUT_WINDOWS(vesk::RefusedTextTest);
#include "RefusedTextTest.moc"
