#include "Model/ArcGeometry.h"

#include "Support/TestValues.h"

#include <cmath>

using vesk::Vector3d;

Q_DECLARE_METATYPE(Vector3d)

namespace
{

const double s_turn = 2.0 * std::acos(-1.0);

bool IsNear(const Vector3d& a, const Vector3d& b)
{
    return (a - b).norm() <= 1e-12;
}

/// A quarter of radius 0.5 about (3, 4), from the right to the top.
ArcShape Quarter(const Vector3d& normal)
{
    return {{3, 4, 0}, 0.5, {3.5, 4, 0}, {3, 4.5, 0}, normal};
}

}

class ArcGeometryTest final : public QObject
{
    Q_OBJECT

private slots:
    void aCircleIsAnArcThatBeginsAlongXWhereThatCanBe_data()
    {
        QTest::addColumn<Vector3d>("normal");
        QTest::addColumn<Vector3d>("direction");

        const double half = std::sqrt(0.5);
        const double rest = std::sqrt(1.0 - 0.9 * 0.9);
        QTest::newRow("from above") << Vector3d(0, 0, 1) << Vector3d(1, 0, 0);
        QTest::newRow("from below") << Vector3d(0, 0, -1) << Vector3d(1, 0, 0);
        QTest::newRow("along y") << Vector3d(0, 1, 0) << Vector3d(1, 0, 0);
        QTest::newRow("slanted") << Vector3d(half, half, 0) << Vector3d(half, -half, 0);
        QTest::newRow("steepest") << Vector3d(0.9, rest, 0) << Vector3d(rest, -0.9, 0);
        QTest::newRow("along x") << Vector3d(1, 0, 0) << Vector3d(0, 1, 0);
        QTest::newRow("back along x") << Vector3d(-1, 0, 0) << Vector3d(0, 1, 0);
    }

    void aCircleIsAnArcThatBeginsAlongXWhereThatCanBe()
    {
        QFETCH(Vector3d, normal);
        QFETCH(Vector3d, direction);

        const ArcShape arc = ToArc({{10, 20, 30}, 4.0, normal});

        QVERIFY(IsNear(arc.start, Vector3d(10, 20, 30) + 4.0 * direction));
        QCOMPARE(arc.end, arc.start);
        QCOMPARE(arc.centre, Vector3d(10, 20, 30));
        QCOMPARE(arc.normal, normal);
        QCOMPARE(arc.radius, 4.0);
        QCOMPARE(SweepOf(arc), s_turn);
    }

    void anArcLeavesItsStartAboutItsNormal()
    {
        QVERIFY(IsNear(StartTangent(Quarter({0, 0, 1})), {0, 1, 0}));
        QVERIFY(IsNear(StartTangent(Quarter({0, 0, -1})), {0, -1, 0}));
    }

    void anglesRunFromTheStartAboutTheNormal_data()
    {
        QTest::addColumn<Vector3d>("point");
        QTest::addColumn<double>("eighths");

        QTest::newRow("start") << Vector3d(9, 4, 0) << 0.0;
        QTest::newRow("in between") << Vector3d(3.1, 4.1, 0) << 1.0;
        QTest::newRow("end") << Vector3d(3, 4.2, 0) << 2.0;
        QTest::newRow("opposite") << Vector3d(-3, 4, 0) << 4.0;
        QTest::newRow("below") << Vector3d(3, -3, 0) << 6.0;
        QTest::newRow("almost around") << Vector3d(4, 3, 0) << 7.0;
    }

    void anglesRunFromTheStartAboutTheNormal()
    {
        QFETCH(Vector3d, point);
        QFETCH(double, eighths);

        const double up = AngleTo(Quarter({0, 0, 1}), point);
        const double down = AngleTo(Quarter({0, 0, -1}), point);

        QVERIFY(std::abs(up - eighths / 8.0 * s_turn) <= 1e-12);
        QVERIFY(std::abs(down - std::fmod(8.0 - eighths, 8.0) / 8.0 * s_turn) <= 1e-12);
        QCOMPARE(Spans(Quarter({0, 0, 1}), point), eighths <= 2.0);
        QCOMPARE(Spans(Quarter({0, 0, -1}), point), eighths == 0.0 || eighths >= 2.0);
    }

    void theSweepRunsToTheEnd()
    {
        QCOMPARE(SweepOf(Quarter({0, 0, 1})), s_turn / 4.0);
        QCOMPARE(SweepOf(Quarter({0, 0, -1})), s_turn * 0.75);
        QCOMPARE(CentralAngleOf(Quarter({0, 0, 1})), 90.0);
        QCOMPARE(CentralAngleOf(Quarter({0, 0, -1})), 270.0);
    }

    void pointsLieWhereTheirAngleSays()
    {
        const ArcShape up = Quarter({0, 0, 1});
        const ArcShape down = Quarter({0, 0, -1});

        QVERIFY(IsNear(PointAt(up, 0.0), {3.5, 4, 0}));
        QVERIFY(IsNear(PointAt(up, s_turn / 4.0), {3, 4.5, 0}));
        QVERIFY(IsNear(PointAt(down, s_turn / 4.0), {3, 3.5, 0}));
        QVERIFY(IsNear(PointAt(down, s_turn / 2.0), {2.5, 4, 0}));
    }
};

VESK_TESTS_WITHOUT_WINDOWS(ArcGeometryTest);
#include "ArcGeometryTest.moc"
