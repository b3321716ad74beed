#include "Desktop/DesktopTest.h"

namespace vesk
{

namespace
{

const QString s_style = QStringLiteral("Sketcher.LineStyle");
const QString s_colour = QStringLiteral("Sketcher.LineColour");
const QString s_width = QStringLiteral("Sketcher.LineWidth");

}

/// The controls of the ribbon, each used with the mouse and with the keys alone.
class ControlsTest : public DesktopTest
{
    Q_OBJECT

private slots:
    void comboBoxTakesTheClickedItem();
    void comboBoxIsUsedWithTheKeys();
    void wheelOverABoxWithoutTheFocusChangesNothing();
    void wheelOverTheBoxWithTheFocusChangesIt();
    void checkBoxIsClicked();
    void checkBoxIsUsedWithTheKeys();
    void radioButtonIsClicked();
    void radioButtonIsUsedWithTheKeys();
    void lineEditIsUsedWithTheKeys();
    void commandButtonIsUsedWithTheKeys();

private:
    QPoint CentreOf(const QString& controlId);
    bool OpenListOf(const QString& boxId);
    bool DrawLineAlongX(const QString& length, int number);
};

QPoint ControlsTest::CentreOf(const QString& controlId)
{
    return Session().Tree().FindControl(controlId).value_or(UiControl()).rect.center();
}

bool ControlsTest::OpenListOf(const QString& boxId)
{
    const int before = Session().Input().CountWindows();
    return Session().Click(boxId) &&
           PollUntil([&] { return Session().Input().CountWindows() > before; });
}

bool ControlsTest::DrawLineAlongX(const QString& length, int number)
{
    return Session().BeginLine(QPointF(0.0, -60.0 * number)) &&
           Session().Type(length, {"Return"}) && Session().WaitForEntities(number) &&
           Session().Type("", {"Escape"}) && Session().WaitForAction(QString());
}

void ControlsTest::comboBoxTakesTheClickedItem()
{
    QVERIFY(OpenListOf(s_style));
    // The list opens with its current item over the box.
    const int itemHeight = Session().Tree().FindControl(s_style)->rect.height() * 9 / 10;
    QVERIFY(Session().Input().Click(CentreOf(s_style) + QPoint(0, itemHeight)));
    QVERIFY(Session().WaitForText(s_style, "虚线"));

    QVERIFY(DrawLineAlongX("50", 1));
    const QVector<DrawnLine> lines = CloseAndReadLines();
    QCOMPARE(lines.size(), 1);
    QCOMPARE(lines[0].style, QString("dashed"));
    QCOMPARE(lines[0].colour, QString("default"));
}

void ControlsTest::comboBoxIsUsedWithTheKeys()
{
    QVERIFY(Session().Type("", Session().KeysTo(s_style) + QStringList{"Down"}));
    QVERIFY(Session().WaitForText(s_style, "虚线"));
    QVERIFY(Session().Type("", {"Down", "Down", "Up"}));
    QVERIFY(Session().WaitForText(s_style, "点线"));

    const int before = Session().Input().CountWindows();
    QVERIFY(Session().Type("", {"Tab", "alt+Down"}));
    QVERIFY(PollUntil([&] { return Session().Input().CountWindows() > before; }));
    QVERIFY(Session().Type("", {"Down", "Down", "Down", "Return"}));
    QVERIFY(Session().WaitForText(s_colour, "绿色"));

    QVERIFY(DrawLineAlongX("50", 1));
    const QVector<DrawnLine> lines = CloseAndReadLines();
    QCOMPARE(lines.size(), 1);
    QCOMPARE(lines[0].style, QString("dotted"));
    QCOMPARE(lines[0].colour, QString("green"));
}

void ControlsTest::wheelOverABoxWithoutTheFocusChangesNothing()
{
    QVERIFY(Session().Input().MoveTo(CentreOf(s_style)));
    QVERIFY(Session().Input().Wheel(-2));
    QVERIFY(Session().Input().MoveTo(CentreOf(s_colour)));
    QVERIFY(Session().Input().Wheel(-2));

    // What follows the wheel has arrived, so the wheel has too.
    QVERIFY(DrawLineAlongX("50", 1));
    QVERIFY(Session().WaitForText(s_style, "实线"));
    QVERIFY(Session().WaitForText(s_colour, "默认"));
    const QVector<DrawnLine> lines = CloseAndReadLines();
    QCOMPARE(lines.size(), 1);
    QCOMPARE(lines[0].style, QString("solid"));
    QCOMPARE(lines[0].colour, QString("default"));
    QCOMPARE(ReadBytes(Session().PathOf("journal")).count("\"kind\":\"property\""), 0);
}

void ControlsTest::wheelOverTheBoxWithTheFocusChangesIt()
{
    QVERIFY(Session().Type("", Session().KeysTo(s_style) + QStringList{"Down"}));
    QVERIFY(Session().WaitForText(s_style, "虚线"));

    QVERIFY(Session().Input().MoveTo(CentreOf(s_style)));
    QVERIFY(Session().Input().Wheel(-2));

    QVERIFY(Session().WaitForText(s_style, "点画线"));
}

void ControlsTest::checkBoxIsClicked()
{
    QVERIFY(Session().WaitForChecked("Sketcher.Snap.Grid", false));

    QVERIFY(Session().Click("Sketcher.Snap.Grid"));
    QVERIFY(Session().WaitForChecked("Sketcher.Snap.Grid", true));
    QVERIFY(Session().BeginLine(QPointF(-52.0, 3.0)));
    QVERIFY(Session().ClickView(QPointF(38.0, -17.0)));
    QVERIFY(Session().WaitForEntities(1));
    QVERIFY(Session().Click("Sketcher.Snap.Grid"));
    QVERIFY(Session().WaitForChecked("Sketcher.Snap.Grid", false));

    const QVector<DrawnLine> lines = CloseAndReadLines();
    QCOMPARE(lines.size(), 1);
    QCOMPARE(lines[0].start[0], -50.0);
    QCOMPARE(lines[0].start[1], 0.0);
    QCOMPARE(lines[0].end[0], 40.0);
    QCOMPARE(lines[0].end[1], -20.0);
}

void ControlsTest::checkBoxIsUsedWithTheKeys()
{
    QVERIFY(Session().WaitForChecked("Sketcher.Snap.End", true));

    QVERIFY(Session().Type("", Session().KeysTo(s_width) + QStringList{"Tab", "space"}));
    QVERIFY(Session().WaitForChecked("Sketcher.Snap.End", false));
    // Both Tab and the arrow keys move from one box to the next.
    QVERIFY(Session().Type("", {"Tab", "space", "Tab", "Right", "Right", "space"}));
    QVERIFY(Session().WaitForChecked("Sketcher.Snap.Middle", true));
    QVERIFY(Session().WaitForChecked("Sketcher.Snap.Grid", true));
    QVERIFY(Session().WaitForChecked("Sketcher.Snap.Centre", false));
    QVERIFY(Session().WaitForChecked("Sketcher.Snap.Intersection", false));
    QVERIFY(Session().Type("", {"space"}));
    QVERIFY(Session().WaitForChecked("Sketcher.Snap.Grid", false));
    // The key tip shown on the box itself.
    QVERIFY(Session().Type("", Session().KeysTo("Sketcher.Snap.Centre")));
    QVERIFY(Session().WaitForChecked("Sketcher.Snap.Centre", true));
}

void ControlsTest::radioButtonIsClicked()
{
    QVERIFY(Session().WaitForChecked("Sketcher.Unit.mm", true));

    QVERIFY(Session().Click("Sketcher.Unit.cm"));
    QVERIFY(Session().WaitForChecked("Sketcher.Unit.cm", true));
    QVERIFY(Session().WaitForChecked("Sketcher.Unit.mm", false));
    QVERIFY(DrawLineAlongX("12", 1));

    const QVector<DrawnLine> lines = CloseAndReadLines();
    QCOMPARE(lines.size(), 1);
    QVERIFY(qAbs(lines[0].GetLength() - 120.0) <= 1e-9);
}

void ControlsTest::radioButtonIsUsedWithTheKeys()
{
    QVERIFY(Session().Type("", Session().KeysTo(s_width) +
                                   QStringList{"Tab", "Tab", "Tab", "Tab", "Tab", "Tab", "Right"}));
    QVERIFY(Session().WaitForChecked("Sketcher.Unit.cm", true));
    QVERIFY(Session().Type("", {"Right", "Right"}));
    QVERIFY(Session().WaitForChecked("Sketcher.Unit.inch", true));
    QVERIFY(DrawLineAlongX("2", 1));
    QVERIFY(Session().Type("", Session().KeysTo("Sketcher.Unit.m")));
    QVERIFY(Session().WaitForChecked("Sketcher.Unit.m", true));
    QVERIFY(DrawLineAlongX("0.05", 2));

    const QVector<DrawnLine> lines = CloseAndReadLines();
    QCOMPARE(lines.size(), 2);
    QVERIFY(qAbs(lines[0].GetLength() - 50.8) <= 1e-9);
    QVERIFY(qAbs(lines[1].GetLength() - 50.0) <= 1e-9);
}

void ControlsTest::lineEditIsUsedWithTheKeys()
{
    QVERIFY(Session().Type("", Session().KeysTo("Sketcher.DrawingName") + QStringList{"ctrl+a"} +
                                   InputDriver::Text("Plan C") + QStringList{"Return"}));

    QVERIFY(Session().WaitForText("Sketcher.DrawingName", "Plan C"));
    QCOMPARE(Session().Tree().GetAction(), QString());
}

void ControlsTest::commandButtonIsUsedWithTheKeys()
{
    QVERIFY(Session().Type("", Session().KeysTo("Sketcher.Line")));
    QVERIFY(Session().WaitForAction("Sketcher.Line"));
    QVERIFY(Session().ClickView(QPointF(0.0, 0.0)));
    QVERIFY(Session().Type("25", {"Return"}));

    QVERIFY(Session().WaitForEntities(1));
}

}

VESK_TESTS_WITHOUT_WINDOWS(vesk::ControlsTest);
#include "ControlsTest.moc"
