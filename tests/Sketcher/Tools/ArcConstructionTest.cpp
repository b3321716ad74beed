#include "Tools/ArcConstruction.h"

#include "Model/ArcGeometry.h"
#include "Model/Polar.h"
#include "Model/ShapeMeasure.h"
#include "Support/TestValues.h"

#include <cmath>
#include <random>

using vesk::Vector3d;

Q_DECLARE_METATYPE(Vector3d)

namespace
{

const Vector3d s_left(-5, 0, 0);
const Vector3d s_right(5, 0, 0);

bool IsNear(const Vector3d& a, const Vector3d& b)
{
    return (a - b).norm() <= 1e-9;
}

}

class ArcConstructionTest final : public QObject
{
    Q_OBJECT

private slots:
    void anArcPassesThroughItsThreePoints()
    {
        std::mt19937 random(11);
        std::uniform_real_distribution<double> place(-100.0, 100.0);

        for (int i = 0; i < 500; ++i)
        {
            const Vector3d start(place(random), place(random), 0);
            const Vector3d end(place(random), place(random), 0);
            const Vector3d point(place(random), place(random), 0);
            const std::optional<ArcShape> arc = ArcThrough(start, end, point);

            QVERIFY(arc.has_value());
            QCOMPARE(arc->normal, Vector3d(0, 0, 1));
            QVERIFY((arc->start == start && arc->end == end) ||
                    (arc->start == end && arc->end == start));
            const double tolerance = 1e-12 * arc->radius * arc->radius;
            QVERIFY(DistanceTo(*arc, point) <= tolerance);
            QVERIFY(std::abs((point - arc->centre).norm() - arc->radius) <= tolerance);
        }
    }

    void anArcRunsCounterClockwiseWhereverTheThirdPointIs()
    {
        const std::optional<ArcShape> above = ArcThrough(s_left, s_right, {0, 5, 0});
        const std::optional<ArcShape> below = ArcThrough(s_left, s_right, {0, -5, 0});

        QCOMPARE(above->start, s_right);
        QCOMPARE(above->end, s_left);
        QCOMPARE(below->start, s_left);
        QCOMPARE(below->end, s_right);
        QVERIFY(IsNear(above->centre, {0, 0, 0}));
        QCOMPARE(above->radius, 5.0);
    }

    void threePointsOnALineMakeNoArc()
    {
        QVERIFY(!ArcThrough(s_left, s_right, {1, 0, 0}).has_value());
        QVERIFY(!ArcThrough(s_left, s_right, s_right).has_value());
        QVERIFY(!ArcThrough(s_left, s_left, {0, 5, 0}).has_value());
        QVERIFY(!ArcThrough(s_left, s_right, {0, 1e-9, 0}).has_value());
    }

    void aRadiusMakesTheArcLikeThatThroughAPoint_data()
    {
        QTest::addColumn<double>("radius");
        QTest::addColumn<double>("height");
        QTest::addColumn<bool>("isLonger");

        QTest::newRow("above") << 13.0 << 3.9 << false;
        QTest::newRow("below") << 13.0 << -0.1 << false;
        QTest::newRow("longer above") << 13.0 << 4.1 << true;
        QTest::newRow("longer below") << 13.0 << -20.0 << true;
        QTest::newRow("half circle above") << 5.0 << 1.0 << false;
        QTest::newRow("half circle below") << 5.0 << -10.0 << false;
        QTest::newRow("flat") << 1e6 << 1.0 << false;
    }

    void aRadiusMakesTheArcLikeThatThroughAPoint()
    {
        QFETCH(double, radius);
        QFETCH(double, height);
        QFETCH(bool, isLonger);

        const std::optional<ArcShape> arc = ArcOfRadius(s_left, s_right, radius, {3, height, 0});
        const Vector3d top = TopOfArc(s_left, s_right, radius, {3, height, 0});

        QVERIFY(arc.has_value());
        QCOMPARE(arc->radius, radius);
        QCOMPARE(arc->start, (height > 0 ? s_right : s_left));
        QCOMPARE(CentralAngleOf(*arc) > 180.0 + 1e-9, isLonger);
        QCOMPARE(std::signbit(top.y()), std::signbit(height));
        QVERIFY(DistanceTo(*arc, top) <= 1e-9);
        QVERIFY(std::abs(top.x()) <= 1e-12);
        QCOMPARE(ArcOfRadius(s_left, s_right, radius, top)->centre, arc->centre);
    }

    void onTheChordTheLeftSideCounts()
    {
        QCOMPARE(ArcOfRadius(s_left, s_right, 13, s_right)->start, s_right);
        QVERIFY(TopOfArc(s_left, s_right, 13, s_right).y() > 0);
    }

    void theRiseOfAFlatArcIsNotLostInRounding()
    {
        constexpr double Half = 1e-3;
        constexpr double Radius = 0.9;

        const Vector3d top = TopOfArc({-Half, 0, 0}, {Half, 0, 0}, Radius, {0, 1e-9, 0});

        const double rise =
            Half * Half / (2.0 * Radius) + std::pow(Half, 4) / (8.0 * std::pow(Radius, 3));
        QVERIFY(std::abs(top.y() - rise) <= 1e-12 * rise);
    }

    void tooSmallARadiusMakesNoArc()
    {
        QVERIFY(!ArcOfRadius(s_left, s_right, 4.99, {0, 1, 0}).has_value());
        QVERIFY(!ArcOfRadius(s_left, s_right, 0.0, {0, 1, 0}).has_value());
        QVERIFY(!ArcOfRadius(s_left, s_right, 1.1e9, {0, 1, 0}).has_value());
    }

    void aCentralAngleMakesItsArc_data()
    {
        QTest::addColumn<double>("degrees");
        QTest::addColumn<Vector3d>("start");
        QTest::addColumn<Vector3d>("end");

        QTest::newRow("90") << 90.0 << Vector3d(5, 0, 0) << Vector3d(0, 5, 0);
        QTest::newRow("-90") << -90.0 << Vector3d(0, -5, 0) << Vector3d(5, 0, 0);
        QTest::newRow("270") << 270.0 << Vector3d(5, 0, 0) << Vector3d(0, -5, 0);
        QTest::newRow("-180") << -180.0 << Vector3d(-5, 0, 0) << Vector3d(5, 0, 0);
        QTest::newRow("360") << 360.0 << Vector3d(5, 0, 0) << Vector3d(5, 0, 0);
        QTest::newRow("-360") << -360.0 << Vector3d(5, 0, 0) << Vector3d(5, 0, 0);
    }

    void aCentralAngleMakesItsArc()
    {
        QFETCH(double, degrees);
        QFETCH(Vector3d, start);
        QFETCH(Vector3d, end);

        const std::optional<ArcShape> arc = ArcByAngle({0, 0, 0}, s_right, degrees);

        QVERIFY(arc.has_value());
        QCOMPARE(arc->start, start);
        QCOMPARE(arc->end, end);
        QCOMPARE(arc->radius, 5.0);
        QCOMPARE(CentralAngleOf(*arc), std::abs(degrees));
    }

    void anyCentralAngleIsKept()
    {
        for (double degrees = 0.5; degrees < 360.0; degrees += 0.5)
        {
            const auto arc = ArcByAngle({3, -7, 0}, {5, 1, 0}, degrees);
            const auto back = ArcByAngle({3, -7, 0}, {5, 1, 0}, -degrees);
            QVERIFY(std::abs(CentralAngleOf(*arc) - degrees) <= 1e-9);
            QVERIFY(std::abs(CentralAngleOf(*back) - degrees) <= 1e-9);
            QCOMPARE(arc->start, back->end);
        }
    }

    void impossibleCentralAnglesMakeNoArc_data()
    {
        QTest::addColumn<double>("degrees");

        QTest::newRow("none") << 0.0;
        QTest::newRow("more than a turn") << 360.5;
        QTest::newRow("shorter than the least") << 1e-6;
        QTest::newRow("lost in rounding") << -1e-15;
        QTest::newRow("nan") << std::nan("");
    }

    void impossibleCentralAnglesMakeNoArc()
    {
        QFETCH(double, degrees);

        QVERIFY(!ArcByAngle({0.3, 0, 0}, s_right, degrees).has_value());
        QVERIFY(!ArcByAngle({0.3, 100, 0}, {5, 100, 0}, degrees).has_value());
    }

    void aGapLostInRoundingMakesNoShortArc()
    {
        const std::optional<ArcShape> arc = ArcByAngle({0.3, 0, 0}, s_right, 360.0 - 1e-13);

        QVERIFY(!arc.has_value() || CentralAngleOf(*arc) > 359.0);
    }

    void theShorterArcIsBetweenTwoPoints()
    {
        const auto up = ArcBetween({0, 0, 0}, s_right, {0, 5, 0});
        const auto down = ArcBetween({0, 0, 0}, s_right, {0, -5, 0});

        QCOMPARE(up->start, s_right);
        QCOMPARE(up->end, Vector3d(0, 5, 0));
        QCOMPARE(down->start, Vector3d(0, -5, 0));
        QCOMPARE(down->end, s_right);
        QCOMPARE(ArcBetween({0, 0, 0}, s_right, s_left)->start, s_right);
        QVERIFY(!ArcBetween({0, 0, 0}, s_right, s_right).has_value());
        QVERIFY(!ArcBetween({0, 0, 0}, s_right, {0, 6, 0}).has_value());
    }
};

VESK_TESTS_WITHOUT_WINDOWS(ArcConstructionTest);
#include "ArcConstructionTest.moc"
