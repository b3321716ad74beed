#include "Model/AreaSelection.h"

#include "Model/Sketch.h"
#include "Support/TestValues.h"

using vesk::Vector3d;

Q_DECLARE_METATYPE(Shape)

namespace
{

const Vector3d s_up(0, 0, 1);

/// From (0, 0) to (100, 50).
const Area s_area = Area::Between({100, 0, 0}, {0, 50, 0});

Shape Line(double x1, double y1, double x2, double y2)
{
    return LineShape{{x1, y1, 0}, {x2, y2, 0}};
}

Shape Rectangle(double x1, double y1, double x2, double y2)
{
    return RectangleShape{
        {Vector3d(x1, y1, 0), Vector3d(x2, y1, 0), Vector3d(x2, y2, 0), Vector3d(x1, y2, 0)}};
}

/// The upper half of a circle.
Shape Arch(double x, double y, double radius)
{
    return ArcShape{{x, y, 0}, radius, {x + radius, y, 0}, {x - radius, y, 0}, s_up};
}

}

class AreaSelectionTest final : public QObject
{
    Q_OBJECT

private slots:
    void anAreaHoldsOrTouchesAShape_data()
    {
        QTest::addColumn<Shape>("shape");
        QTest::addColumn<bool>("isHeld");
        QTest::addColumn<bool>("isTouched");

        QTest::newRow("line inside") << Line(10, 10, 90, 40) << true << true;
        QTest::newRow("line on the edge") << Line(0, 0, 100, 0) << true << true;
        QTest::newRow("line that leaves") << Line(10, 10, 190, 40) << false << true;
        QTest::newRow("line across") << Line(-10, 20, 110, 30) << false << true;
        QTest::newRow("line over a corner") << Line(-10, 40, 10, 60) << false << true;
        QTest::newRow("line past a corner") << Line(-30, 40, 0, 80) << false << false;
        QTest::newRow("line outside") << Line(0, 51, 100, 51) << false << false;

        QTest::newRow("circle inside") << Shape(CircleShape{{50, 25, 0}, 25, s_up}) << true << true;
        QTest::newRow("circle that leaves")
            << Shape(CircleShape{{50, 25, 0}, 26, s_up}) << false << true;
        QTest::newRow("circle around")
            << Shape(CircleShape{{50, 25, 0}, 60, s_up}) << false << false;
        QTest::newRow("circle beside a corner")
            << Shape(CircleShape{{108, 58, 0}, 11, s_up}) << false << false;
        QTest::newRow("circle over a corner")
            << Shape(CircleShape{{108, 58, 0}, 12, s_up}) << false << true;

        QTest::newRow("arch inside") << Arch(50, 10, 30) << true << true;
        QTest::newRow("arch with its foot inside") << Arch(110, 10, 30) << false << true;
        QTest::newRow("arch over it") << Arch(50, 10, 80) << false << false;
        QTest::newRow("arch that would touch if it was whole")
            << Arch(50, 60, 30) << false << false;

        QTest::newRow("rectangle inside") << Rectangle(1, 1, 99, 49) << true << true;
        QTest::newRow("rectangle across") << Rectangle(10, -10, 20, 60) << false << true;
        QTest::newRow("rectangle around") << Rectangle(-1, -1, 101, 51) << false << false;
    }

    void anAreaHoldsOrTouchesAShape()
    {
        QFETCH(Shape, shape);

        QTEST(Applies(AreaRule::Holds, s_area, shape), "isHeld");
        QTEST(Applies(AreaRule::Touches, s_area, shape), "isTouched");
    }

    void anAreaAsThinAsALineTouches()
    {
        const Area flat = Area::Between({0, 10, 0}, {100, 10, 0});
        const Area point = Area::Between({7, 7, 0}, {7, 7, 0});

        QVERIFY(Applies(AreaRule::Touches, flat, Line(50, 0, 50, 20)));
        QVERIFY(Applies(AreaRule::Touches, flat, Shape(CircleShape{{50, 0, 0}, 20, s_up})));
        QVERIFY(!Applies(AreaRule::Touches, flat, Line(50, 11, 50, 20)));
        QVERIFY(!Applies(AreaRule::Touches, point, Line(0, 0, 5, 20)));
    }

    void entitiesAreFoundInTheOrderOfDrawing()
    {
        Sketch sketch;
        const int across = sketch.Add(Line(-10, 20, 110, 30));
        sketch.Add(Line(0, 60, 100, 60));
        const int inside = sketch.Add(Line(10, 10, 90, 40));

        QCOMPARE(FindInArea(sketch, s_area, AreaRule::Holds), std::vector<int>{inside});
        QCOMPARE(FindInArea(sketch, s_area, AreaRule::Touches), (std::vector<int>{across, inside}));
    }
};

VESK_TESTS_WITHOUT_WINDOWS(AreaSelectionTest);
#include "AreaSelectionTest.moc"
