#include "Model/ShapeTransform.h"

#include "Model/ArcGeometry.h"
#include "Model/Polar.h"
#include "ShapeValues.h"
#include "Support/TestValues.h"

using vesk::Vector3d;

Q_DECLARE_METATYPE(Shape)
Q_DECLARE_METATYPE(Vector3d)

namespace
{

const Vector3d s_up(0, 0, 1);

/// From the right of the centre counter-clockwise to above it.
ArcShape QuarterArc()
{
    return {{10, 20, 0}, 5, {15, 20, 0}, {10, 25, 0}, s_up};
}

}

class ShapeTransformTest final : public QObject
{
    Q_OBJECT

private slots:
    void anImageIsAsHighAsItsOriginal()
    {
        const Shape image = Mirrored(LineShape{{1, 2, 5}, {3, 4, -6}}, {0, 0, 1}, {0, 1, 0});

        QCOMPARE(image, Shape(LineShape{{-1, 2, 5}, {-3, 4, -6}}));
    }

    void everyPointOfAShapeMoves_data()
    {
        QTest::addColumn<Shape>("shape");
        QTest::addColumn<Shape>("moved");

        QTest::newRow("line") << Shape(LineShape{{0, 0, 0}, {4, 1, 0}})
                              << Shape(LineShape{{3, -2, 0}, {7, -1, 0}});
        QTest::newRow("circle") << Shape(CircleShape{{1, 1, 0}, 2.5, s_up})
                                << Shape(CircleShape{{4, -1, 0}, 2.5, s_up});
        QTest::newRow("arc") << Shape(QuarterArc())
                             << Shape(ArcShape{{13, 18, 0}, 5, {18, 18, 0}, {13, 23, 0}, s_up});
        QTest::newRow("rectangle")
            << Shape(RectangleShape{{Vector3d(0, 0, 0), {4, 0, 0}, {4, 2, 0}, {0, 2, 0}}})
            << Shape(RectangleShape{{Vector3d(3, -2, 0), {7, -2, 0}, {7, 0, 0}, {3, 0, 0}}});
    }

    void everyPointOfAShapeMoves()
    {
        QFETCH(Shape, shape);
        QFETCH(Shape, moved);

        QCOMPARE(Translated(shape, {3, -2, 0}), moved);
    }

    void axesAtMultiplesOf45DegreesAreExact_data()
    {
        QTest::addColumn<double>("degrees");
        QTest::addColumn<Vector3d>("mirrored");

        QTest::newRow("0") << 0.0 << Vector3d(8, -9, 0);
        QTest::newRow("180") << 180.0 << Vector3d(8, -9, 0);
        QTest::newRow("90") << 90.0 << Vector3d(-2, 5, 0);
        QTest::newRow("-90") << -90.0 << Vector3d(-2, 5, 0);
        QTest::newRow("45") << 45.0 << Vector3d(10, 3, 0);
        QTest::newRow("-135") << -135.0 << Vector3d(10, 3, 0);
        QTest::newRow("135") << 135.0 << Vector3d(-4, -7, 0);
    }

    void axesAtMultiplesOf45DegreesAreExact()
    {
        QFETCH(double, degrees);
        QFETCH(Vector3d, mirrored);
        const LineShape line{{8, 5, 0}, {100, 100, 0}};

        const Shape image = Mirrored(line, {3, -2, 0}, DirectionOf(degrees));

        QCOMPARE(std::get<LineShape>(image).start, mirrored);
    }

    void theLengthOfTheAxisDoesNotMatter()
    {
        const LineShape line{{8, 5, 0}, {1, 1, 0}};

        const Shape image = Mirrored(line, {3, -2, 0}, {0, 1e-3, 0});

        QCOMPARE(image, Mirrored(line, {3, -2, 0}, {0, 7e5, 0}));
    }

    void aMirroredArcRunsTheSameWayRound()
    {
        const Shape image = Mirrored(QuarterArc(), {0, 0, 0}, {0, 1, 0});

        // Otherwise it would be the other three quarters of the circle.
        QCOMPARE(image, Shape(ArcShape{{-10, 20, 0}, 5, {-10, 25, 0}, {-15, 20, 0}, s_up}));
        QCOMPARE(SweepOf(std::get<ArcShape>(image)), FullTurn / 4);
    }

    void mirroredTwiceIsTheOriginal_data()
    {
        QTest::addColumn<Shape>("shape");

        QTest::newRow("line") << Shape(LineShape{{0, 0, 0}, {4, 1, 0}});
        QTest::newRow("circle") << Shape(CircleShape{{1, 1, 0}, 2.5, s_up});
        QTest::newRow("arc") << Shape(QuarterArc());
        QTest::newRow("rectangle")
            << Shape(RectangleShape{{Vector3d(0, 0, 0), {4, 0, 0}, {4, 2, 0}, {0, 2, 0}}});
    }

    void mirroredTwiceIsTheOriginal()
    {
        QFETCH(Shape, shape);
        const Vector3d onAxis(2, 3, 0);
        const Vector3d direction(0, 1, 0);

        const Shape image = Mirrored(shape, onAxis, direction);

        QVERIFY(!(image == shape));
        QVERIFY(IsDrawable(image));
        QCOMPARE(Mirrored(image, onAxis, direction), shape);
    }

    void crookedImagesAreAsFarFromTheAxis()
    {
        const Vector3d onAxis(-7, 0.3, 0);
        const Vector3d direction = DirectionOf(17.3);
        const LineShape line{{12, 41.5, 0}, {1, -9, 0}};

        const auto image = std::get<LineShape>(Mirrored(line, onAxis, direction));

        const Vector3d normal = QuarterTurned(direction);
        QVERIFY(std::abs((image.start - onAxis).dot(normal) + (line.start - onAxis).dot(normal)) <=
                1e-13);
        QVERIFY(std::abs((image.start - line.start).dot(direction)) <= 1e-13);
    }
};

VESK_TESTS(ShapeTransformTest);
#include "ShapeTransformTest.moc"
