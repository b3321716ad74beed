#include "Desktop/DesktopTest.h"

#include <cmath>

namespace vesk
{

/// Drawing without the mouse.
class KeyboardTest : public DesktopTest
{
    Q_OBJECT

private slots:
    void rectangleIsDrawnWithKeysAlone();
    void pointIsTypedFasterThanTheToolStarts();
    void keysThatFollowAPointBelongToItsSizes();
    void cursorWalksByArrowsAndSpaceSetsThePoints();
    void escapeClosesThePointAndThenTheTool();
    void shortcutWorksWhileAPointIsTyped();
    void areasAreReachedByKeys();
};

void KeyboardTest::rectangleIsDrawnWithKeysAlone()
{
    QVERIFY(Session().Input().Keys({"F10", "2", "r"}));
    QVERIFY(Session().WaitForAction("Sketcher.Rectangle"));
    QVERIFY(Session().Type("10", {"Tab", "2", "0", "Return"}));
    QVERIFY(Session().WaitForNoPoint());
    QVERIFY(Session().Type("120", {"Tab", "8", "0", "Return"}));

    QVERIFY(Session().WaitForEntities(1));
    QVERIFY(CloseProgram());
    QCOMPARE(ReadCorners(), (QVector<QPointF>{{10, 20}, {130, 20}, {130, 100}, {10, 100}}));
}

void KeyboardTest::pointIsTypedFasterThanTheToolStarts()
{
    QVERIFY(Session().Input().Keys(QStringList{"ctrl+r"} + InputDriver::Text("10") +
                                   QStringList{"Tab"} + InputDriver::Text("20") +
                                   QStringList{"Return"}));

    QVERIFY(
        Session().WaitFor([](const UiTree& tree) { return tree.GetHint().contains("对角点"); }));
    QVERIFY(Session().WaitForNoPoint());
}

void KeyboardTest::keysThatFollowAPointBelongToItsSizes()
{
    QVERIFY(Session().Input().Keys(QStringList{"ctrl+r"} + InputDriver::Text("-1cm") +
                                   QStringList{"Tab"} + InputDriver::Text("2*3") +
                                   QStringList{"Return"} + InputDriver::Text("12.5") +
                                   QStringList{"Tab"} + InputDriver::Text("8") +
                                   QStringList{"Return", "at", "1", "0", "Tab", "0", "Return"} +
                                   InputDriver::Text("5") + QStringList{"Tab", "6", "Return"}));

    QVERIFY(Session().WaitForEntities(2));
    QVERIFY(CloseProgram());
    QCOMPARE(ReadCorners(), (QVector<QPointF>{{-10, 6},
                                              {2.5, 6},
                                              {2.5, 14},
                                              {-10, 14},
                                              {12.5, 14},
                                              {17.5, 14},
                                              {17.5, 20},
                                              {12.5, 20}}));
}

void KeyboardTest::cursorWalksByArrowsAndSpaceSetsThePoints()
{
    QVERIFY(Session().Input().Keys({"ctrl+l"}));
    QVERIFY(Session().WaitForAction("Sketcher.Line"));
    QVERIFY(Session().Input().Keys(
        {"Right", "Up", "shift+Up", "space", "Right", "Right", "shift+Left", "Down", "space"}));

    QVERIFY(Session().WaitForEntities(1));
    const QVector<DrawnLine> lines = CloseAndReadLines();
    QCOMPARE(lines.size(), 1);
    // The steps are those of the grid, 10 and 1: the numbers are exact.
    QCOMPARE(lines[0].GetWay(0), 19.0);
    QCOMPARE(lines[0].GetWay(1), -1.0);
    QCOMPARE(lines[0].start[0], std::round(lines[0].start[0]));
}

void KeyboardTest::escapeClosesThePointAndThenTheTool()
{
    QVERIFY(Session().Input().Keys({"ctrl+l"}));
    QVERIFY(Session().WaitForAction("Sketcher.Line"));
    QVERIFY(Session().Type("10"));
    QVERIFY(Session().WaitForPoint("10", ""));

    QVERIFY(Session().Input().Keys({"Escape"}));
    QVERIFY(Session().WaitForNoPoint());
    QCOMPARE(Session().Tree().GetAction(), QString("Sketcher.Line"));
    QVERIFY(Session().Input().Keys({"Escape"}));

    QVERIFY(Session().WaitForAction({}));
}

void KeyboardTest::shortcutWorksWhileAPointIsTyped()
{
    QVERIFY(Session().Input().Keys({"ctrl+l"}));
    QVERIFY(Session().WaitForAction("Sketcher.Line"));
    QVERIFY(Session().Type("10"));
    QVERIFY(Session().WaitForPoint("10", ""));

    QVERIFY(Session().Input().Keys({"Up", "ctrl+r"}));

    QVERIFY(Session().WaitForAction("Sketcher.Rectangle"));
    QVERIFY(Session().WaitForNoPoint());
}

/// What the mouse can do in a list is done without it: the entity is selected and removed there.
void KeyboardTest::areasAreReachedByKeys()
{
    QVERIFY(Session().Input().Keys(
        QStringList{"ctrl+l", "0", "Tab", "0", "Return", "5", "0", "Return", "Escape"}));
    QVERIFY(Session().WaitForEntities(1));
    QVERIFY(Session().WaitForAction({}));

    QVERIFY(Session().Input().Keys({"F6", "space", "Delete"}));

    QVERIFY(Session().WaitForEntities(0));
}

}

VESK_TESTS_WITHOUT_WINDOWS(vesk::KeyboardTest);
#include "KeyboardTest.moc"
