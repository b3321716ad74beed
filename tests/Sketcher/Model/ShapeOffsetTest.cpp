#include "Model/ShapeOffset.h"

#include "ShapeValues.h"
#include "Support/TestValues.h"

using vesk::Vector3d;

Q_DECLARE_METATYPE(Shape)
Q_DECLARE_METATYPE(Vector3d)

namespace
{

const Vector3d s_up(0, 0, 1);
const LineShape s_line{{0, 0, 0}, {40, 0, 0}};
const CircleShape s_circle{{10, 0, 0}, 5, s_up};
const ArcShape s_arc{{0, 0, 0}, 10, {10, 0, 0}, {0, 10, 0}, s_up};
const RectangleShape s_rectangle{{Vector3d(0, 0, 0), {40, 0, 0}, {40, 20, 0}, {0, 20, 0}}};

}

class ShapeOffsetTest final : public QObject
{
    Q_OBJECT

private slots:
    void theParallelIsOnTheSideOfThePoint_data()
    {
        QTest::addColumn<Shape>("shape");
        QTest::addColumn<Vector3d>("point");
        QTest::addColumn<Shape>("parallel");

        QTest::newRow("above a line")
            << Shape(s_line) << Vector3d(7, 99, 0) << Shape(LineShape{{0, 3, 0}, {40, 3, 0}});
        QTest::newRow("below a line, beyond its end")
            << Shape(s_line) << Vector3d(400, -1, 0) << Shape(LineShape{{0, -3, 0}, {40, -3, 0}});
        QTest::newRow("outside a circle")
            << Shape(s_circle) << Vector3d(10, 60, 0) << Shape(CircleShape{{10, 0, 0}, 8, s_up});
        QTest::newRow("inside a circle")
            << Shape(s_circle) << Vector3d(11, 1, 0) << Shape(CircleShape{{10, 0, 0}, 2, s_up});
        QTest::newRow("at the centre of a circle")
            << Shape(s_circle) << Vector3d(10, 0, 0) << Shape(CircleShape{{10, 0, 0}, 2, s_up});
        QTest::newRow("outside an arc")
            << Shape(s_arc) << Vector3d(-50, 0, 0)
            << Shape(ArcShape{{0, 0, 0}, 13, {13, 0, 0}, {0, 13, 0}, s_up});
        QTest::newRow("inside an arc") << Shape(s_arc) << Vector3d(2, 2, 0)
                                       << Shape(ArcShape{{0, 0, 0}, 7, {7, 0, 0}, {0, 7, 0}, s_up});
        QTest::newRow("outside a rectangle")
            << Shape(s_rectangle) << Vector3d(60, 10, 0)
            << Shape(RectangleShape{{Vector3d(-3, -3, 0), {43, -3, 0}, {43, 23, 0}, {-3, 23, 0}}});
        QTest::newRow("inside a rectangle")
            << Shape(s_rectangle) << Vector3d(20, 10, 0)
            << Shape(RectangleShape{{Vector3d(3, 3, 0), {37, 3, 0}, {37, 17, 0}, {3, 17, 0}}});
    }

    void theParallelIsOnTheSideOfThePoint()
    {
        QFETCH(Shape, shape);
        QFETCH(Vector3d, point);
        QFETCH(Shape, parallel);

        const std::optional<Shape> offset = Offset(shape, point, 3);

        QVERIFY(offset.has_value());
        QCOMPARE(*offset, parallel);
    }

    void aRectangleDrawnTheOtherWayRoundGrowsToo()
    {
        const RectangleShape clockwise{{Vector3d(0, 0, 0), {0, 20, 0}, {40, 20, 0}, {40, 0, 0}}};

        const std::optional<Shape> offset = Offset(clockwise, {99, 0, 0}, 3);

        QVERIFY(offset.has_value());
        QCOMPARE(*offset, Shape(RectangleShape{
                              {Vector3d(-3, -3, 0), {-3, 23, 0}, {43, 23, 0}, {43, -3, 0}}}));
    }

    void whatWouldTurnInsideOutIsNothing_data()
    {
        QTest::addColumn<Shape>("shape");
        QTest::addColumn<Vector3d>("inside");
        QTest::addColumn<double>("least");

        QTest::newRow("circle") << Shape(s_circle) << Vector3d(11, 0, 0) << 5.0;
        QTest::newRow("arc") << Shape(s_arc) << Vector3d(1, 0, 0) << 10.0;
        QTest::newRow("rectangle") << Shape(s_rectangle) << Vector3d(20, 10, 0) << 10.0;
    }

    void whatWouldTurnInsideOutIsNothing()
    {
        QFETCH(Shape, shape);
        QFETCH(Vector3d, inside);
        QFETCH(double, least);

        QVERIFY(!Offset(shape, inside, least).has_value());
        QVERIFY(!Offset(shape, inside, 1.5 * least).has_value());
        QVERIFY(!Offset(shape, inside, 3 * least).has_value());
        QVERIFY(Offset(shape, inside, 0.999 * least).has_value());
    }

    void aPointFacesTheOutline_data()
    {
        QTest::addColumn<Shape>("shape");
        QTest::addColumn<Vector3d>("point");
        QTest::addColumn<Vector3d>("foot");
        QTest::addColumn<Vector3d>("away");
        QTest::addColumn<double>("distance");
        QTest::addColumn<bool>("isInside");

        QTest::newRow("line") << Shape(s_line) << Vector3d(7, -4, 0) << Vector3d(7, 0, 0)
                              << Vector3d(0, -1, 0) << 4.0 << false;
        QTest::newRow("circle") << Shape(s_circle) << Vector3d(10, 8, 0) << Vector3d(10, 5, 0)
                                << Vector3d(0, 1, 0) << 3.0 << false;
        QTest::newRow("in a circle") << Shape(s_circle) << Vector3d(10, 3, 0) << Vector3d(10, 5, 0)
                                     << Vector3d(0, -1, 0) << 2.0 << true;
        QTest::newRow("the centre of a circle")
            << Shape(s_circle) << Vector3d(10, 0, 0) << Vector3d(15, 0, 0) << Vector3d(-1, 0, 0)
            << 5.0 << true;
        QTest::newRow("beyond an arc") << Shape(s_arc) << Vector3d(-12, 0, 0) << Vector3d(-10, 0, 0)
                                       << Vector3d(-1, 0, 0) << 2.0 << false;
        QTest::newRow("rectangle") << Shape(s_rectangle) << Vector3d(44, 5, 0) << Vector3d(40, 5, 0)
                                   << Vector3d(1, 0, 0) << 4.0 << false;
        QTest::newRow("beyond a corner")
            << Shape(s_rectangle) << Vector3d(44, 22, 0) << Vector3d(40, 22, 0) << Vector3d(1, 0, 0)
            << 4.0 << false;
        QTest::newRow("in a rectangle") << Shape(s_rectangle) << Vector3d(20, 17, 0)
                                        << Vector3d(20, 20, 0) << Vector3d(0, -1, 0) << 3.0 << true;
    }

    void aPointFacesTheOutline()
    {
        QFETCH(Shape, shape);
        QFETCH(Vector3d, point);

        const OffsetSide side = SideOf(shape, point);

        QTEST(side.foot, "foot");
        QTEST(side.away, "away");
        QTEST(side.distance, "distance");
        QTEST(side.isInside, "isInside");
    }

    void theParallelThroughAPointGoesThroughIt_data()
    {
        QTest::addColumn<Shape>("shape");

        QTest::newRow("line") << Shape(s_line);
        QTest::newRow("circle") << Shape(s_circle);
        QTest::newRow("rectangle") << Shape(s_rectangle);
    }

    void theParallelThroughAPointGoesThroughIt()
    {
        QFETCH(Shape, shape);
        const Vector3d point(13, 2.5, 0);

        const std::optional<Shape> offset = Offset(shape, point, SideOf(shape, point).distance);

        QVERIFY(offset.has_value());
        QVERIFY(SideOf(*offset, point).distance <= 1e-12);
    }
};

VESK_TESTS(ShapeOffsetTest);
#include "ShapeOffsetTest.moc"
