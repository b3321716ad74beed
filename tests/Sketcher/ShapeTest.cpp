#include "Shape.h"

#include "ShapeValues.h"
#include "Support/TestValues.h"

#include <cmath>
#include <limits>

Q_DECLARE_METATYPE(Shape)

using vesk::Vector3d;

namespace
{

constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
const Vector3d s_up(0, 0, 1);

RectangleShape MakeRectangle(double width, double height)
{
    return {{Vector3d(0, 0, 0), Vector3d(width, 0, 0), Vector3d(width, height, 0),
             Vector3d(0, height, 0)}};
}

}

class ShapeTest final : public QObject
{
    Q_OBJECT

private slots:
    void whatHasASizeCanBeDrawn_data()
    {
        QTest::addColumn<Shape>("shape");

        QTest::newRow("shortest line") << Shape(LineShape{{0, 0, 0}, {1e-6, 0, 0}});
        QTest::newRow("longest line") << Shape(LineShape{{0, 0, 0}, {0, 1e9, 0}});
        QTest::newRow("least circle") << Shape(CircleShape{{5, 5, 0}, 1e-6, s_up});
        QTest::newRow("greatest circle") << Shape(CircleShape{{5, 5, 0}, 1e9, s_up});
        QTest::newRow("arc") << Shape(ArcShape{{1, 1, 0}, 2, {3, 1, 0}, {1, 3, 0}, s_up});
        QTest::newRow("whole turn") << Shape(ArcShape{{1, 1, 0}, 2, {3, 1, 0}, {3, 1, 0}, -s_up});
        QTest::newRow("arc with rounded ends")
            << Shape(ArcShape{{1e6, 0, 0}, 0.1, {1e6 + 0.1, 0, 0}, {1e6, 0.1, 0}, s_up});
        QTest::newRow("longest line, rounded up")
            << Shape(LineShape{{0, 0, 0}, {0, std::nextafter(1e9, 2e9), 0}});
        QTest::newRow("rectangle") << Shape(MakeRectangle(1e-6, 1e9));
        QTest::newRow("turned rectangle") << Shape(RectangleShape{
            {Vector3d(0, 0, 0), Vector3d(3, 4, 0), Vector3d(-1, 7, 0), Vector3d(-4, 3, 0)}});
    }

    void whatHasASizeCanBeDrawn()
    {
        QFETCH(Shape, shape);

        QVERIFY(IsDrawable(shape));
    }

    void whatHasNoneCannotBeDrawn_data()
    {
        QTest::addColumn<Shape>("shape");

        QTest::newRow("no line") << Shape(LineShape{{1, 1, 0}, {1, 1, 0}});
        QTest::newRow("too long a line") << Shape(LineShape{{-6e8, 0, 0}, {6e8, 0, 0}});
        QTest::newRow("line from nowhere") << Shape(LineShape{{NaN, 0, 0}, {1, 0, 0}});
        QTest::newRow("no circle") << Shape(CircleShape{{0, 0, 0}, 0.0, s_up});
        QTest::newRow("negative radius") << Shape(CircleShape{{0, 0, 0}, -1.0, s_up});
        QTest::newRow("radius without a value") << Shape(CircleShape{{0, 0, 0}, NaN, s_up});
        QTest::newRow("too great a circle") << Shape(CircleShape{{0, 0, 0}, 1.1e9, s_up});
        QTest::newRow("circle about nothing") << Shape(CircleShape{{0, NaN, 0}, 1.0, s_up});
        QTest::newRow("circle without a plane") << Shape(CircleShape{{0, 0, 0}, 1.0, {0, 0, 0}});
        QTest::newRow("start off the circle")
            << Shape(ArcShape{{0, 0, 0}, 2, {2.1, 0, 0}, {0, 2, 0}, s_up});
        QTest::newRow("end off the circle")
            << Shape(ArcShape{{0, 0, 0}, 2, {2, 0, 0}, {0, 1.9, 0}, s_up});
        QTest::newRow("end above the plane")
            << Shape(ArcShape{{0, 0, 0}, 2, {2, 0, 0}, {0, 0, 2}, s_up});
        QTest::newRow("too short an arc")
            << Shape(ArcShape{{0, 0, 0}, 2, {2, 0, 0}, {2, 0.9e-6, 0}, s_up});
        QTest::newRow("line to infinity")
            << Shape(LineShape{{0, 0, 0}, {std::numeric_limits<double>::infinity(), 0, 0}});
        QTest::newRow("line at infinity")
            << Shape(LineShape{{std::numeric_limits<double>::infinity(), 0, 0},
                               {std::numeric_limits<double>::infinity(), 1, 0}});
        QTest::newRow("no width") << Shape(MakeRectangle(0, 1));
        QTest::newRow("no height") << Shape(MakeRectangle(1, 0.9e-6));
        QTest::newRow("too wide") << Shape(MakeRectangle(1.1e9, 1));
        QTest::newRow("slanted") << Shape(RectangleShape{
            {Vector3d(0, 0, 0), Vector3d(4, 0, 0), Vector3d(5, 2, 0), Vector3d(1, 2, 0)}});
        QTest::newRow("not closed") << Shape(RectangleShape{
            {Vector3d(0, 0, 0), Vector3d(4, 0, 0), Vector3d(4, 2, 0), Vector3d(0, 3, 0)}});
    }

    void whatHasNoneCannotBeDrawn()
    {
        QFETCH(Shape, shape);

        QVERIFY(!IsDrawable(shape));
    }

    void shapesAreTheSameWhenEveryNumberIs()
    {
        const Shape circle = CircleShape{{1, 2, 0}, 3, s_up};

        QCOMPARE(circle, Shape(CircleShape{{1, 2, 0}, 3, s_up}));
        QVERIFY(!(circle == Shape(CircleShape{{1, 2, 0}, 3, -s_up})));
        QVERIFY(!(circle == Shape(LineShape{{1, 2, 0}, {3, 0, 0}})));
        QCOMPARE(Shape(MakeRectangle(1, 2)), Shape(MakeRectangle(1, 2)));
        QVERIFY(!(Shape(MakeRectangle(1, 2)) == Shape(MakeRectangle(1, 3))));
    }
};

QTEST_GUILESS_MAIN(ShapeTest)
#include "ShapeTest.moc"
