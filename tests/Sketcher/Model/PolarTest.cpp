#include "Model/Polar.h"

#include "Support/TestValues.h"

#include <cmath>

using vesk::Vector3d;

class PolarTest final : public QObject
{
    Q_OBJECT

private slots:
    void heldAnglesAreMultiplesOf15Degrees_data()
    {
        QTest::addColumn<double>("degrees");
        QTest::addColumn<double>("held");

        QTest::newRow("0") << 7.4 << 0.0;
        QTest::newRow("15") << 7.6 << 15.0;
        QTest::newRow("-75") << -70.0 << -75.0;
        QTest::newRow("180") << 179.0 << 180.0;
        QTest::newRow("180 from below") << -179.0 << 180.0;
    }

    void heldAnglesAreMultiplesOf15Degrees()
    {
        QFETCH(double, degrees);

        QTEST(HeldAngle(degrees), "held");
    }

    void quarterTurnsAreExact_data()
    {
        QTest::addColumn<double>("degrees");
        QTest::addColumn<double>("x");
        QTest::addColumn<double>("y");

        QTest::newRow("0") << 0.0 << 1.0 << 0.0;
        QTest::newRow("90") << 90.0 << 0.0 << 1.0;
        QTest::newRow("180") << 180.0 << -1.0 << 0.0;
        QTest::newRow("270") << 270.0 << 0.0 << -1.0;
        QTest::newRow("360") << 360.0 << 1.0 << 0.0;
        QTest::newRow("-90") << -90.0 << 0.0 << -1.0;
        QTest::newRow("-180") << -180.0 << -1.0 << 0.0;
        QTest::newRow("-270") << -270.0 << 0.0 << 1.0;
        QTest::newRow("-360") << -360.0 << 1.0 << 0.0;
    }

    void quarterTurnsAreExact()
    {
        QFETCH(double, degrees);

        const Vector3d direction = DirectionOf(degrees);

        QTEST(direction.x(), "x");
        QTEST(direction.y(), "y");
        QCOMPARE(direction.z(), 0.0);
    }

    void usualAnglesAreAsExactAsDoublesAre()
    {
        QVERIFY(50.0 * DirectionOf(30.0).y() == 25.0);
        QVERIFY(50.0 * DirectionOf(60.0).x() == 25.0);
        QVERIFY(50.0 * DirectionOf(-330.0).y() == 25.0);
        QVERIFY(DirectionOf(45.0).x() == DirectionOf(45.0).y());
        QVERIFY(DirectionOf(75.0).x() == 0.25881904510252076);
    }

    void angleOfADirectionIsTheAngle()
    {
        for (double degrees = -179.75; degrees <= 180.0; degrees += 0.25)
        {
            const Vector3d direction = DirectionOf(degrees);
            QVERIFY(std::abs(direction.norm() - 1.0) < 1e-15);
            QVERIFY(std::abs(AngleOf(direction) - degrees) < 1e-12);
        }
    }

    void anAngleBetweenIsTheShorterWay_data()
    {
        QTest::addColumn<double>("from");
        QTest::addColumn<double>("to");
        QTest::addColumn<double>("between");

        QTest::newRow("quarter") << 0.0 << 90.0 << 90.0;
        QTest::newRow("quarter back") << 90.0 << 0.0 << -90.0;
        QTest::newRow("half") << 0.0 << 180.0 << 180.0;
        QTest::newRow("half from above") << 90.0 << 270.0 << 180.0;
        QTest::newRow("over the left") << 170.0 << -170.0 << 20.0;
        QTest::newRow("back over the left") << -170.0 << 170.0 << -20.0;
        QTest::newRow("none") << 33.0 << 33.0 << 0.0;
    }

    void anAngleBetweenIsTheShorterWay()
    {
        QFETCH(double, from);
        QFETCH(double, to);
        QFETCH(double, between);

        const double angle = AngleBetween(3.0 * DirectionOf(from), 0.1 * DirectionOf(to));

        QVERIFY(std::abs(angle - between) < 1e-12);
    }

    void quarterTurnsBetweenAreExact()
    {
        QCOMPARE(AngleBetween({7, 0, 0}, {0, 3, 0}), 90.0);
        QCOMPARE(AngleBetween({0, 3, 0}, {7, 0, 0}), -90.0);
        QCOMPARE(AngleBetween({7, 0, 0}, {-7, 0, 0}), 180.0);
        QCOMPARE(AngleBetween({7, 0, 0}, {-7, -1e-20, 0}), 180.0);
        QCOMPARE(AngleBetween({3, 4, 0}, {-4, 3, 0}), 90.0);
    }

    void whatHasNoDirectionMakesNoAngle()
    {
        QCOMPARE(AngleBetween({0, 0, 0}, {1, 2, 0}), 0.0);
        QCOMPARE(AngleBetween({1, 2, 0}, {0, 0, 0}), 0.0);
    }
};

VESK_TESTS_WITHOUT_WINDOWS(PolarTest);
#include "PolarTest.moc"
