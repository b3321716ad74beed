#include "Desktop/DesktopTest.h"

namespace vesk
{

/// Escape cancels one thing at a time, and nothing that is finished.
class EscapeTest : public DesktopTest
{
    Q_OBJECT

private slots:
    void inTheEditorItEndsTheInputOnly();
    void inTheEditorItLeavesALockedValueLocked();
    void inTheViewItFirstDropsLockedValues();
    void inTheViewItEndsTheAction();
    void heldForTwoSecondsItCountsOnce_data();
    void heldForTwoSecondsItCountsOnce();
    void closingTheEditorEndsTheInputOnly();

private:
    void DrawOneLine();

    /// Locks a length of 50 and leaves the editor.
    void LockLength();
};

void EscapeTest::DrawOneLine()
{
    QVERIFY(Session().BeginLine());
    QVERIFY(Session().Type("20", {"Tab", "9", "0", "Return"}));
    QVERIFY(Session().WaitForEntities(1));
}

void EscapeTest::LockLength()
{
    QVERIFY(Session().BeginLine());
    QVERIFY(Session().MoveInView(QPointF(200.0, 10.0)));
    QVERIFY(Session().Type("50", {"Tab"}));
    QVERIFY(Session().WaitFor([](const UiTree& tree) {
        const std::optional<UiEditor> editor = tree.FindEditor();
        return editor && editor->state == 2 && editor->locked == QVector<int>{1};
    }));
    QVERIFY(Session().Type("", {"Escape"}));
    QVERIFY(Session().WaitForNoEditor());
}

void EscapeTest::inTheEditorItEndsTheInputOnly()
{
    DrawOneLine();
    QVERIFY(Session().Type("77"));
    QVERIFY(Session().WaitForEditor("77"));

    QVERIFY(Session().Type("", {"Escape"}));

    QVERIFY(Session().WaitForNoEditor());
    QCOMPARE(Session().Tree().GetAction(), QString("Sketcher.Line"));
    QCOMPARE(Session().Tree().GetEntityCount(), 1);
    QVERIFY(Session().Type("30", {"Return"}));
    QVERIFY(Session().WaitForEntities(2));
}

void EscapeTest::inTheEditorItLeavesALockedValueLocked()
{
    LockLength();

    QVERIFY(Session().ClickView(QPointF(0.0, 150.0)));

    QVERIFY(DrawsOneLine(50.0));
}

void EscapeTest::inTheViewItFirstDropsLockedValues()
{
    LockLength();

    QVERIFY(Session().Type("", {"Escape"}));
    QVERIFY(Session().ClickView(QPointF(0.0, 150.0)));

    QVERIFY(Session().WaitForEntities(1));
    QCOMPARE(Session().Tree().GetAction(), QString("Sketcher.Line"));
    const QVector<DrawnLine> lines = CloseAndReadLines();
    QCOMPARE(lines.size(), 1);
    QVERIFY(qAbs(lines[0].GetLength() - 150.0) < 5.0);
}

void EscapeTest::inTheViewItEndsTheAction()
{
    LockLength();

    QVERIFY(Session().Type("", {"Escape", "Escape"}));

    QVERIFY(Session().WaitForAction(QString()));
    QCOMPARE(Session().Tree().GetEntityCount(), 0);
}

void EscapeTest::heldForTwoSecondsItCountsOnce_data()
{
    QTest::addColumn<bool>("inEditor");
    QTest::addColumn<QString>("actionAfterwards");
    QTest::newRow("in the editor: the action goes on") << true << "Sketcher.Line";
    QTest::newRow("in the view: the action ends") << false << QString();
}

void EscapeTest::heldForTwoSecondsItCountsOnce()
{
    QFETCH(bool, inEditor);
    QFETCH(QString, actionAfterwards);
    DrawOneLine();
    if (inEditor)
    {
        QVERIFY(Session().Type("77"));
        QVERIFY(Session().WaitForEditor("77"));
    }

    // The server repeats a held key after 0.66 s, 25 times a second.
    QVERIFY(Session().Input().KeyDown("Escape"));
    QVERIFY(
        !Session().WaitFor([](const UiTree& tree) { return tree.GetEntityCount() != 1; }, 2000));
    QVERIFY(Session().Input().KeyUp("Escape"));

    QVERIFY(Session().WaitForNoEditor());
    QVERIFY(Session().WaitForAction(actionAfterwards));
    QCOMPARE(CloseAndReadLines().size(), 1);
}

/// Like Escape in the editor, but by the key of the window manager.
void EscapeTest::closingTheEditorEndsTheInputOnly()
{
    DrawOneLine();
    QVERIFY(Session().Type("50"));
    QVERIFY(Session().WaitFor([](const UiTree& tree) {
        const std::optional<UiEditor> editor = tree.FindEditor();
        return editor && editor->text == "50" && editor->hasFocus;
    }));

    QVERIFY(Session().Type("", {"alt+F4"}));

    QVERIFY(Session().WaitForNoEditor());
    QCOMPARE(Session().Tree().GetAction(), QString("Sketcher.Line"));
    QVERIFY(Session().Type("7", {"Return"}));
    QVERIFY(Session().WaitForEntities(2));
    const QVector<DrawnLine> lines = CloseAndReadLines();
    QCOMPARE(lines.size(), 2);
    QVERIFY(qAbs(lines[1].GetLength() - 7.0) <= 1e-9);
}

}

VESK_TESTS_WITHOUT_WINDOWS(vesk::EscapeTest);
#include "EscapeTest.moc"
