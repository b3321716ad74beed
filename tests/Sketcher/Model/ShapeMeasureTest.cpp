#include "Model/ShapeMeasure.h"

#include "Model/ArcGeometry.h"
#include "Support/TestValues.h"

#include <algorithm>
#include <cmath>

Q_DECLARE_METATYPE(Shape)
Q_DECLARE_METATYPE(vesk::Vector3d)

using vesk::Vector3d;

namespace
{

const Vector3d s_up(0, 0, 1);
constexpr double Tolerance = 1e-9;

/// An arc of radius 10 about (20, 30), between two angles in degrees.
ArcShape MakeArc(double from, double to, const Vector3d& normal = s_up)
{
    const Vector3d centre(20, 30, 0);
    const auto at = [&centre](double degrees) {
        const double radians = degrees * std::acos(-1.0) / 180.0;
        return Vector3d(centre + 10.0 * Vector3d(std::cos(radians), std::sin(radians), 0));
    };
    return {centre, 10.0, at(from), at(to), normal};
}

}

class ShapeMeasureTest final : public QObject
{
    Q_OBJECT

private slots:
    void theDistanceIsFromTheNearestPoint_data()
    {
        QTest::addColumn<Shape>("shape");
        QTest::addColumn<Vector3d>("point");
        QTest::addColumn<double>("distance");

        const Shape line = LineShape{{0, 0, 0}, {10, 0, 0}};
        QTest::newRow("beside a line") << line << Vector3d(5, 3, 0) << 3.0;
        QTest::newRow("before its start") << line << Vector3d(-3, 4, 0) << 5.0;
        QTest::newRow("behind its end") << line << Vector3d(13, -4, 0) << 5.0;
        QTest::newRow("on it") << line << Vector3d(7, 0, 0) << 0.0;

        const Shape circle = CircleShape{{1, 1, 0}, 5.0, s_up};
        QTest::newRow("in a circle") << circle << Vector3d(1, 3, 0) << 3.0;
        QTest::newRow("at its centre") << circle << Vector3d(1, 1, 0) << 5.0;
        QTest::newRow("outside it") << circle << Vector3d(7, 9, 0) << 5.0;
        QTest::newRow("above it") << circle << Vector3d(6, 1, 2) << 2.0;

        const Shape arc = MakeArc(0, 90);
        QTest::newRow("outside an arc") << arc << Vector3d(26, 38, 0) << 0.0;
        QTest::newRow("behind the end of an arc") << arc << Vector3d(17, 44, 0) << 5.0;
        QTest::newRow("before its start") << arc << Vector3d(34, 27, 0) << 5.0;
        QTest::newRow("across it") << arc << Vector3d(20, 20, 0) << std::sqrt(200.0);
        QTest::newRow("across the arc the other way")
            << Shape(MakeArc(0, 90, -s_up)) << Vector3d(20, 20, 0) << 0.0;

        const Shape rectangle = RectangleShape{
            {Vector3d(0, 0, 0), Vector3d(8, 0, 0), Vector3d(8, 6, 0), Vector3d(0, 6, 0)}};
        QTest::newRow("in a rectangle") << rectangle << Vector3d(6, 3, 0) << 2.0;
        QTest::newRow("off its corner") << rectangle << Vector3d(-3, 10, 0) << 5.0;
        QTest::newRow("beside its last side") << rectangle << Vector3d(-1, 3, 0) << 1.0;
    }

    void theDistanceIsFromTheNearestPoint()
    {
        QFETCH(Shape, shape);
        QFETCH(Vector3d, point);
        QFETCH(double, distance);

        QVERIFY(std::abs(DistanceTo(shape, point) - distance) <= Tolerance);
    }

    void theBoundsHoldAllOfAShapeAndNoMore_data()
    {
        QTest::addColumn<Shape>("shape");
        QTest::addColumn<Vector3d>("low");
        QTest::addColumn<Vector3d>("high");

        QTest::newRow("line") << Shape(LineShape{{9, 2, 0}, {4, 7, 0}}) << Vector3d(4, 2, 0)
                              << Vector3d(9, 7, 0);
        QTest::newRow("circle") << Shape(CircleShape{{1, 2, 0}, 5, s_up}) << Vector3d(-4, -3, 0)
                                << Vector3d(6, 7, 0);
        const double half = std::sqrt(0.5);
        QTest::newRow("upright circle") << Shape(CircleShape{{1, 2, 3}, 5, {0, 1, 0}})
                                        << Vector3d(-4, 2, -2) << Vector3d(6, 2, 8);
        QTest::newRow("slanted circle")
            << Shape(CircleShape{{1, 2, 3}, 5, {half, 0, half}})
            << Vector3d(1 - 5 * half, -3, 3 - 5 * half) << Vector3d(1 + 5 * half, 7, 3 + 5 * half);
        QTest::newRow("quarter") << Shape(MakeArc(0, 90)) << Vector3d(20, 30, 0)
                                 << Vector3d(30, 40, 0);
        QTest::newRow("the other three quarters")
            << Shape(MakeArc(0, 90, -s_up)) << Vector3d(10, 20, 0) << Vector3d(30, 40, 0);
        QTest::newRow("over the top")
            << Shape(MakeArc(30, 150)) << Vector3d(20 - 5 * std::sqrt(3.0), 35, 0)
            << Vector3d(20 + 5 * std::sqrt(3.0), 40, 0);
        QTest::newRow("whole turn")
            << Shape(MakeArc(33, 33)) << Vector3d(10, 20, 0) << Vector3d(30, 40, 0);
        QTest::newRow("rectangle")
            << Shape(RectangleShape{
                   {Vector3d(0, 0, 0), Vector3d(3, 4, 0), Vector3d(-1, 7, 0), Vector3d(-4, 3, 0)}})
            << Vector3d(-4, 0, 0) << Vector3d(3, 7, 0);
    }

    void theBoundsHoldAllOfAShapeAndNoMore()
    {
        QFETCH(Shape, shape);
        QFETCH(Vector3d, low);
        QFETCH(Vector3d, high);

        const ShapeBounds bounds = BoundsOf(shape);

        QVERIFY((bounds.low - low).norm() <= Tolerance);
        QVERIFY((bounds.high - high).norm() <= Tolerance);
    }

    void anArcIsAsNearAsItsPoints()
    {
        const ArcShape arc = MakeArc(-70, 200);
        const Vector3d point(5, 12, 0);
        constexpr int Steps = 20000;

        double nearest = 1e9;
        for (int i = 0; i <= Steps; ++i)
            nearest = std::min(nearest, (PointAt(arc, SweepOf(arc) * i / Steps) - point).norm());

        QVERIFY(std::abs(DistanceTo(arc, point) - nearest) <= 1e-6);
    }
};

VESK_TESTS_WITHOUT_WINDOWS(ShapeMeasureTest);
#include "ShapeMeasureTest.moc"
