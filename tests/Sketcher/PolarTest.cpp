#include "Polar.h"

#include <QTest>

#include <cmath>

using vesk::Vector3d;

class PolarTest final : public QObject
{
    Q_OBJECT

private slots:
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

    void angleOfADirectionIsTheAngle()
    {
        for (double degrees = -179.75; degrees <= 180.0; degrees += 0.25)
        {
            const Vector3d direction = DirectionOf(degrees);
            QVERIFY(std::abs(direction.norm() - 1.0) < 1e-15);
            QVERIFY(std::abs(AngleOf(direction) - degrees) < 1e-12);
        }
    }
};

QTEST_GUILESS_MAIN(PolarTest)
#include "PolarTest.moc"
