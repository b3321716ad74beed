#include "Desktop/DesktopTest.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <cmath>

namespace vesk
{

namespace
{

const QString s_rectangle = QStringLiteral("Sketcher.Rectangle");
const QString s_circle = QStringLiteral("Sketcher.Circle");
const QString s_arc3Points = QStringLiteral("Sketcher.Arc3Points");
const QString s_arcCentre = QStringLiteral("Sketcher.ArcCentre");
const QString s_rotate = QStringLiteral("Sketcher.Rotate");

/// A click represents its pixel, and the centre of the view may lie between two.
constexpr double Pixel = 2.0;
constexpr double Rounding = 1e-9;

double At(const QJsonValue& point, int axis)
{
    return point.toArray()[axis].toDouble();
}

double Distance(const QJsonValue& left, const QJsonValue& right)
{
    return std::hypot(At(left, 0) - At(right, 0), At(left, 1) - At(right, 1));
}

}

/// Rectangles, circles, arcs and rotations, by real keys and clicks.
class ShapeTest : public DesktopTest
{
    Q_OBJECT

private slots:
    void rectangleIsClicked();
    void rectangleIsTyped();
    void rectangleIsTypedInTheQuadrantOfTheCursor();
    void circleIsClicked();
    void circleIsTyped();
    void arcThroughThreePointsIsClicked();
    void arcThroughThreePointsIsTyped();
    void arcAboutACentreIsClicked();
    void arcAboutACentreIsTyped_data();
    void arcAboutACentreIsTyped();
    void selectionIsTurned_data();
    void selectionIsTurned();
    void lockedWidthHoldsWhileTheCursorMoves();
    void tabBeforeTheFirstDigitLosesNoneThatFollow();
    void unusableRadiusIsRefused();
    void boxSelects_data();
    void boxSelects();
    void whatWasDrawnIsRepeated();
    void editorsStandInTheViewAndOffTheCursor_data();
    void editorsStandInTheViewAndOffTheCursor();

private:
    bool Begin(const QString& command);
    bool ClickPoints(const QVector<QPointF>& points);
    bool TypeValue(const QString& text);
    bool DrawLine();
    QJsonArray CloseAndReadEntities();
    QJsonObject CloseAndReadEntity();
};

bool ShapeTest::Begin(const QString& command)
{
    return Session().Click(command) && Session().WaitForAction(command);
}

/// Clicks the points, each only after the previous one was accepted.
bool ShapeTest::ClickPoints(const QVector<QPointF>& points)
{
    for (const QPointF point : points)
    {
        if (!Session().ClickView(point) || !Session().WaitForRest())
            return false;
    }
    return true;
}

bool ShapeTest::TypeValue(const QString& text)
{
    return Session().Type(text, {"Return"}) && Session().WaitForNoEditor();
}

/// A line of 100 to the right, from the centre of the view.
bool ShapeTest::DrawLine()
{
    return Session().BeginLine(QPointF(0, 0)) && Session().Type("100", {"Tab"}) && TypeValue("0") &&
           Session().WaitForEntities(1) && Session().Type("", {"Escape"}) &&
           Session().WaitForAction(QString());
}

QJsonArray ShapeTest::CloseAndReadEntities()
{
    if (!CloseProgram())
        return {};
    return QJsonDocument::fromJson(ReadBytes(Session().PathOf("model.json")))
        .object()["entities"]
        .toArray();
}

/// The only entity of the drawing.
QJsonObject ShapeTest::CloseAndReadEntity()
{
    const QJsonArray entities = CloseAndReadEntities();
    return entities.size() == 1 ? entities[0].toObject() : QJsonObject();
}

void ShapeTest::rectangleIsClicked()
{
    QVERIFY(Begin(s_rectangle));
    QVERIFY(ClickPoints({{-100, 50}, {60, -30}}));
    QVERIFY(Session().WaitForEntities(1));

    const QJsonObject entity = CloseAndReadEntity();
    QCOMPARE(entity["type"].toString(), QString("rectangle"));
    const QJsonArray corners = entity["corners"].toArray();
    QCOMPARE(corners.size(), 4);
    QVERIFY(qAbs(At(corners[0], 0) + 100) <= Pixel && qAbs(At(corners[0], 1) - 50) <= Pixel);
    QVERIFY(qAbs(At(corners[2], 0) - 60) <= Pixel && qAbs(At(corners[2], 1) + 30) <= Pixel);
}

void ShapeTest::rectangleIsTyped()
{
    QVERIFY(Begin(s_rectangle));
    QVERIFY(ClickPoints({{0, 0}}));
    QVERIFY(Session().MoveInView(QPointF(80, 60)));
    QVERIFY(Session().Type("120.5", {"Tab"}));
    QVERIFY(TypeValue("40.25"));
    QVERIFY(Session().WaitForEntities(1));

    const QJsonArray corners = CloseAndReadEntity()["corners"].toArray();
    QVERIFY(qAbs(At(corners[2], 0) - At(corners[0], 0) - 120.5) <= Rounding);
    QVERIFY(qAbs(At(corners[2], 1) - At(corners[0], 1) - 40.25) <= Rounding);
}

void ShapeTest::rectangleIsTypedInTheQuadrantOfTheCursor()
{
    QVERIFY(Begin(s_rectangle));
    QVERIFY(ClickPoints({{0, 0}}));
    QVERIFY(Session().MoveInView(QPointF(-80, -60)));
    QVERIFY(Session().Type("30", {"Tab"}));
    QVERIFY(TypeValue("20"));
    QVERIFY(Session().WaitForEntities(1));

    const QJsonArray corners = CloseAndReadEntity()["corners"].toArray();
    QVERIFY(qAbs(At(corners[2], 0) - At(corners[0], 0) + 30) <= Rounding);
    QVERIFY(qAbs(At(corners[2], 1) - At(corners[0], 1) + 20) <= Rounding);
}

void ShapeTest::circleIsClicked()
{
    QVERIFY(Begin(s_circle));
    QVERIFY(ClickPoints({{20, 10}, {80, 90}}));
    QVERIFY(Session().WaitForEntities(1));

    const QJsonObject entity = CloseAndReadEntity();
    QCOMPARE(entity["type"].toString(), QString("circle"));
    QVERIFY(qAbs(entity["radius"].toDouble() - 100) <= Pixel);
}

void ShapeTest::circleIsTyped()
{
    QVERIFY(Begin(s_circle));
    QVERIFY(ClickPoints({{20, 10}}));
    QVERIFY(Session().MoveInView(QPointF(80, 60)));
    QVERIFY(TypeValue("62.50001"));
    QVERIFY(Session().WaitForEntities(1));

    QCOMPARE(CloseAndReadEntity()["radius"].toDouble(), 62.50001);
}

void ShapeTest::arcThroughThreePointsIsClicked()
{
    QVERIFY(Begin(s_arc3Points));
    QVERIFY(ClickPoints({{-60, 0}, {60, 0}, {0, 60}}));
    QVERIFY(Session().WaitForEntities(1));

    const QJsonObject entity = CloseAndReadEntity();
    QCOMPARE(entity["type"].toString(), QString("arc"));
    QVERIFY(qAbs(entity["radius"].toDouble() - 60) <= Pixel);
}

void ShapeTest::arcThroughThreePointsIsTyped()
{
    QVERIFY(Begin(s_arc3Points));
    QVERIFY(ClickPoints({{-60, 0}, {60, 0}}));
    QVERIFY(Session().MoveInView(QPointF(10, -40)));
    QVERIFY(TypeValue("100"));
    QVERIFY(Session().WaitForEntities(1));

    const QJsonObject entity = CloseAndReadEntity();
    QCOMPARE(entity["radius"].toDouble(), 100.0);
    // Like the arc that the cursor shows: the shorter one, below the chord.
    QVERIFY(At(entity["centre"], 1) > 0);
}

void ShapeTest::arcAboutACentreIsClicked()
{
    QVERIFY(Begin(s_arcCentre));
    QVERIFY(ClickPoints({{0, 0}, {80, 0}, {0, 50}}));
    QVERIFY(Session().WaitForEntities(1));

    const QJsonObject entity = CloseAndReadEntity();
    QVERIFY(qAbs(At(entity["start"], 0) - 80) <= Pixel);
    QVERIFY(qAbs(At(entity["end"], 1) - 80) <= Pixel);
    QVERIFY(qAbs(Distance(entity["centre"], entity["end"]) - entity["radius"].toDouble()) <=
            Rounding);
}

void ShapeTest::arcAboutACentreIsTyped_data()
{
    QTest::addColumn<QString>("angle");
    QTest::addColumn<double>("degrees");

    QTest::newRow("counter-clockwise") << "90" << 90.0;
    QTest::newRow("clockwise") << "-60" << -60.0;
    QTest::newRow("with its unit") << "45d" << 45.0;
    QTest::newRow("beyond half a turn") << "270" << 270.0;
}

void ShapeTest::arcAboutACentreIsTyped()
{
    QFETCH(QString, angle);
    QFETCH(double, degrees);

    QVERIFY(Begin(s_arcCentre));
    QVERIFY(ClickPoints({{0, 0}, {80, 0}}));
    QVERIFY(Session().MoveInView(QPointF(50, 50)));
    QVERIFY(TypeValue(angle));
    QVERIFY(Session().WaitForEntities(1));

    const QJsonObject entity = CloseAndReadEntity();
    const double normal = At(entity["normal"], 2);
    const auto directionOf = [&entity](const char* point) {
        return std::atan2(At(entity[point], 1) - At(entity["centre"], 1),
                          At(entity[point], 0) - At(entity["centre"], 0));
    };
    const double turned = (directionOf("end") - directionOf("start")) * 180.0 / M_PI;
    const double sweep = std::remainder(turned * normal - std::abs(degrees), 360.0);
    QVERIFY(std::abs(sweep) <= 1e-7);
    // It starts or ends in the clicked direction.
    const double fixed = degrees * normal > 0 ? directionOf("start") : directionOf("end");
    QVERIFY(std::abs(fixed) <= Pixel / 40);
}

void ShapeTest::selectionIsTurned_data()
{
    QTest::addColumn<QString>("angle"); // empty: by a click

    QTest::newRow("typed") << "30";
    QTest::newRow("typed backwards") << "-45";
    QTest::newRow("clicked") << "";
}

void ShapeTest::selectionIsTurned()
{
    QFETCH(QString, angle);
    QVERIFY(DrawLine());
    QVERIFY(ClickPoints({{50, 0}}));

    QVERIFY(Begin(s_rotate));
    QVERIFY(ClickPoints({{0, 0}, {100, 0}}));
    QVERIFY(Session().MoveInView(QPointF(0, 80)));
    if (angle.isEmpty())
        QVERIFY(ClickPoints({{0, 80}}));
    else
        QVERIFY(TypeValue(angle));
    QVERIFY(Session().WaitForAction(QString()));

    const QVector<DrawnLine> lines = CloseAndReadLines();
    QCOMPARE(lines.size(), 1);
    QVERIFY(qAbs(lines[0].GetLength() - 100) <= Rounding);
    const double expected = angle.isEmpty() ? 90.0 : angle.toDouble();
    QVERIFY(AngleBetween(lines[0].GetAngle(), expected) <= (angle.isEmpty() ? 2.0 : 1e-7));
}

void ShapeTest::lockedWidthHoldsWhileTheCursorMoves()
{
    QVERIFY(Begin(s_rectangle));
    QVERIFY(ClickPoints({{0, 0}}));
    QVERIFY(Session().MoveInView(QPointF(80, 60)));
    QVERIFY(Session().Type("120", {"Tab"}));
    QVERIFY(Session().WaitFor([](const UiTree& tree) {
        return tree.FindEditor().value_or(UiEditor()).locked == QVector<int>{5};
    }));
    QVERIFY(Session().Type("", {"Escape"}));
    QVERIFY(Session().WaitForNoEditor());
    QVERIFY(ClickPoints({{30, 90}}));
    QVERIFY(Session().WaitForEntities(1));

    const QJsonArray corners = CloseAndReadEntity()["corners"].toArray();
    QVERIFY(qAbs(At(corners[2], 0) - At(corners[0], 0) - 120) <= Rounding);
    QVERIFY(qAbs(At(corners[2], 1) - At(corners[0], 1) - 90) <= Pixel);
}

void ShapeTest::tabBeforeTheFirstDigitLosesNoneThatFollow()
{
    QVERIFY(Begin(s_rectangle));
    QVERIFY(ClickPoints({{0, 0}}));
    QVERIFY(Session().MoveInView(QPointF(80, 60)));

    QVERIFY(Session().Input().Keys(QStringList{"Tab"} + InputDriver::Text("125.5") +
                                   QStringList{"Tab"} + InputDriver::Text("30.75") +
                                   QStringList{"Return"}));

    QVERIFY(Session().WaitForEntities(1));
    const QJsonArray corners = CloseAndReadEntity()["corners"].toArray();
    QVERIFY(qAbs(At(corners[2], 0) - At(corners[0], 0) - 125.5) <= Rounding);
    QVERIFY(qAbs(At(corners[2], 1) - At(corners[0], 1) - 30.75) <= Rounding);
}

void ShapeTest::unusableRadiusIsRefused()
{
    QVERIFY(Begin(s_arc3Points));
    QVERIFY(ClickPoints({{-60, 0}, {60, 0}}));
    QVERIFY(Session().MoveInView(QPointF(10, -40)));
    // Less than half the chord.
    QVERIFY(Session().Type("50", {"Return"}));
    QVERIFY(Session().WaitFor([](const UiTree& tree) {
        return !tree.FindEditor().value_or(UiEditor()).message.isEmpty();
    }));
    QCOMPARE(Session().Tree().FindEditor()->selectedText, QString("50"));
    QVERIFY(TypeValue("75"));
    QVERIFY(Session().WaitForEntities(1));

    QCOMPARE(CloseAndReadEntity()["radius"].toDouble(), 75.0);
}

void ShapeTest::boxSelects_data()
{
    QTest::addColumn<QPointF>("from");
    QTest::addColumn<QPointF>("to");
    QTest::addColumn<bool>("isSelected");

    QTest::newRow("window around it") << QPointF(-50, 50) << QPointF(150, -50) << true;
    QTest::newRow("window across it") << QPointF(30, 50) << QPointF(150, -50) << false;
    QTest::newRow("crossing it") << QPointF(150, 50) << QPointF(30, -50) << true;
    QTest::newRow("crossing beside it") << QPointF(150, 50) << QPointF(30, 20) << false;
}

void ShapeTest::boxSelects()
{
    QFETCH(QPointF, from);
    QFETCH(QPointF, to);
    QFETCH(bool, isSelected);
    QVERIFY(DrawLine());

    QVERIFY(Session().Input().Drag(Session().ToScreen(from), Session().ToScreen(to)));
    QVERIFY(Session().WaitForRest());

    CloseProgram();
    QCOMPARE(ReadBytes(Session().PathOf("journal")).contains("\"selection\""), isSelected);
}

void ShapeTest::whatWasDrawnIsRepeated()
{
    QVERIFY(Begin(s_rectangle));
    QVERIFY(ClickPoints({{-200, 100}}));
    QVERIFY(Session().MoveInView(QPointF(-100, 50)));
    QVERIFY(Session().Type("1/3*100", {"Tab"}));
    QVERIFY(TypeValue("2cm"));
    QVERIFY(Begin(s_circle));
    QVERIFY(ClickPoints({{50, 50}}));
    QVERIFY(TypeValue("sqrt(2)*30"));
    QVERIFY(Begin(s_arcCentre));
    QVERIFY(ClickPoints({{0, -100}, {70, -120}, {30, -40}}));
    QVERIFY(Session().WaitForEntities(3));
    QVERIFY(CloseProgram());
    const QByteArray drawn = ReadBytes(Session().PathOf("model.json"));
    QVERIFY(drawn.contains("circle"));

    const QString again = Session().PathOf("again.json");
    QCOMPARE(Session().RunOffscreen({"--replay", Session().PathOf("journal"), "--model", again}),
             0);

    QCOMPARE(ReadBytes(again), drawn);
}

void ShapeTest::editorsStandInTheViewAndOffTheCursor_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QVector<QPointF>>("points");

    QTest::newRow("line") << "Sketcher.Line" << QVector<QPointF>{{0, 0}};
    QTest::newRow("rectangle") << s_rectangle << QVector<QPointF>{{0, 0}};
    QTest::newRow("circle") << s_circle << QVector<QPointF>{{0, 0}};
    QTest::newRow("arc through three points")
        << s_arc3Points << QVector<QPointF>{{-60, 0}, {60, 0}};
    QTest::newRow("arc about a centre") << s_arcCentre << QVector<QPointF>{{0, 0}, {80, 0}};
    QTest::newRow("turn") << s_rotate << QVector<QPointF>{{0, 0}, {100, 0}};
}

/// With the cursor at every edge and corner of the view.
void ShapeTest::editorsStandInTheViewAndOffTheCursor()
{
    constexpr int Margin = 6;
    QFETCH(QString, command);
    QFETCH(QVector<QPointF>, points);
    // A rotation needs a selection.
    QVERIFY(DrawLine());
    QVERIFY(ClickPoints({{50, 0}}));
    QVERIFY(Begin(command));
    QVERIFY(ClickPoints(points));
    QVERIFY(Session().MoveInView(QPointF(100, 80)));
    QVERIFY(Session().Type("7"));
    QVERIFY(Session().WaitForEditor("7"));
    const QRect view = Session().Tree().FindView()->rect;

    for (const int x : {view.left() + Margin, view.center().x(), view.right() - Margin})
    {
        for (const int y : {view.top() + Margin, view.center().y() - 40, view.bottom() - Margin})
        {
            QVERIFY(Session().Input().MoveTo(QPoint(x, y)));
            QVERIFY(Session().WaitForRest());
            const QRect editor = Session().Tree().FindEditor().value_or(UiEditor()).rect;
            const QByteArray where = QByteArray::number(x) + "," + QByteArray::number(y);
            QVERIFY2(view.contains(editor), where);
            QVERIFY2(!editor.contains(QPoint(x, y)), where);
        }
    }
    QVERIFY(Session().Type("", {"Escape", "Escape"}));
}

}

VESK_TESTS_WITHOUT_WINDOWS(vesk::ShapeTest);
#include "ShapeTest.moc"
