#include "Desktop/DesktopTest.h"

#include <QJsonDocument>
#include <QRandomGenerator>
#include <QtMath>

namespace vesk
{

namespace
{

constexpr double TOLERANCE = 1e-9;

struct TypedValues
{
    QString length;
    QString angle;
};

/// Numbers as people type them: with and without decimals, up to six of them.
QVector<TypedValues> RandomValues(int count)
{
    QRandomGenerator generator(20261121);
    QVector<TypedValues> values;
    for (int i = 0; i < count; ++i)
    {
        const double length = 1.0 + generator.generateDouble() * 999.0;
        const double angle = generator.generateDouble() * 720.0 - 360.0;
        values << TypedValues{QString::number(length, 'f', generator.bounded(7)),
                              QString::number(angle, 'f', generator.bounded(7))};
    }
    return values;
}

}

/// A typed value reaches the drawing as typed, however soon and however fast it is typed.
class TypedLineTest : public DesktopTest
{
    Q_OBJECT

private slots:
    void lengthAndAngleMakeTheVeryLine();
    void lengthAloneTakesTheDirectionOfTheCursor();
    void valueTypedBeforeTheMouseHasMovedGoesAlongX();
    void mouseMovesLeaveTheTypedTextAlone();
    void wheelLeavesTheTypedTextAlone();
    void noneOfManyRandomValuesIsAltered();
};

void TypedLineTest::lengthAndAngleMakeTheVeryLine()
{
    QVERIFY(Session().BeginLine());
    QVERIFY(Session().Type("125.5", {"Tab", "3", "0", "Return"}));

    QVERIFY(DrawsOneLine(125.5, 30.0));
}

void TypedLineTest::lengthAloneTakesTheDirectionOfTheCursor()
{
    QVERIFY(Session().BeginLine());
    QVERIFY(Session().MoveInView(QPointF(90.0, 120.0)));
    QVERIFY(Session().Type("75", {"Return"}));

    QVERIFY(Session().WaitForEntities(1));
    const QVector<DrawnLine> lines = CloseAndReadLines();
    QCOMPARE(lines.size(), 1);
    QVERIFY(qAbs(lines[0].GetLength() - 75.0) <= TOLERANCE);
    // The world points of a start and a cursor on whole pixels.
    QVERIFY(AngleBetween(lines[0].GetAngle(), qRadiansToDegrees(std::atan2(120.0, 90.0))) < 0.5);
}

void TypedLineTest::valueTypedBeforeTheMouseHasMovedGoesAlongX()
{
    QVERIFY(Session().BeginLine());
    QVERIFY(Session().Type("42.25", {"Return"}));

    QVERIFY(DrawsOneLine(42.25, 0.0));
}

void TypedLineTest::mouseMovesLeaveTheTypedTextAlone()
{
    QVERIFY(Session().BeginLine());
    QVERIFY(Session().Type("61.75"));
    QVERIFY(Session().WaitForEditor("61.75"));
    for (int step = 0; step < 40; ++step)
        QVERIFY(Session().MoveInView(QPointF(5.0 * step, 80.0 - 4.0 * step)));
    QVERIFY(Session().WaitForEditor("61.75"));
    QVERIFY(Session().Type("", {"Return"}));

    QVERIFY(DrawsOneLine(61.75));
}

void TypedLineTest::wheelLeavesTheTypedTextAlone()
{
    QVERIFY(Session().BeginLine());
    QVERIFY(Session().MoveInView(QPointF(60.0, 60.0)));
    QVERIFY(Session().Type("33.125"));
    QVERIFY(Session().WaitForEditor("33.125"));
    const double before = Session().Tree().FindView()->worldPerPixel;
    QVERIFY(Session().Input().Wheel(3));
    QVERIFY(Session().WaitFor(
        [&](const UiTree& tree) { return tree.FindView()->worldPerPixel < before; }));
    QVERIFY(Session().WaitForEditor("33.125"));
    QVERIFY(Session().Type("", {"Return"}));

    QVERIFY(DrawsOneLine(33.125));
}

void TypedLineTest::noneOfManyRandomValuesIsAltered()
{
    const QVector<TypedValues> values =
        RandomValues(CountFromEnvironment("VESK_DESKTOP_VALUES", 60));
    for (int i = 0; i < values.size(); ++i)
    {
        // A separate start for each line keeps the coordinates small enough to require 1e-9.
        QVERIFY(Session().BeginLine());
        QVERIFY(Session().Type(values[i].length, QStringList{"Tab"} +
                                                     InputDriver::Text(values[i].angle) +
                                                     QStringList{"Return"}));
        QVERIFY2(Session().WaitForEntities(i + 1),
                 qPrintable(values[i].length + " " + values[i].angle));
    }

    const QVector<DrawnLine> lines = CloseAndReadLines();
    QCOMPARE(lines.size(), values.size());
    for (int i = 0; i < values.size(); ++i)
    {
        const QString typed = values[i].length + " < " + values[i].angle;
        QVERIFY2(qAbs(lines[i].GetLength() - values[i].length.toDouble()) <= TOLERANCE,
                 qPrintable(typed));
        QVERIFY2(AngleBetween(lines[i].GetAngle(), values[i].angle.toDouble()) <= TOLERANCE,
                 qPrintable(typed));
    }
}

}

VESK_TESTS_WITHOUT_WINDOWS(vesk::TypedLineTest);
#include "TypedLineTest.moc"
