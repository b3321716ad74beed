#include "Model/ShapeRotation.h"

#include "Model/ArcGeometry.h"
#include "Model/ShapeMeasure.h"
#include "ShapeValues.h"
#include "Support/TestValues.h"

#include <Eigen/Geometry>

#include <cmath>

using vesk::Vector3d;

Q_DECLARE_METATYPE(Shape)
Q_DECLARE_METATYPE(Vector3d)

namespace
{

const Vector3d s_up(0, 0, 1);
const Vector3d s_centre(3, -2, 0);

}

class ShapeRotationTest final : public QObject
{
    Q_OBJECT

private slots:
    void quarterTurnsAreExact_data()
    {
        QTest::addColumn<double>("degrees");
        QTest::addColumn<Vector3d>("turned");

        QTest::newRow("0") << 0.0 << Vector3d(8, 5, 0);
        QTest::newRow("90") << 90.0 << Vector3d(-4, 3, 0);
        QTest::newRow("180") << 180.0 << Vector3d(-2, -9, 0);
        QTest::newRow("270") << 270.0 << Vector3d(10, -7, 0);
        QTest::newRow("-90") << -90.0 << Vector3d(10, -7, 0);
        QTest::newRow("360") << 360.0 << Vector3d(8, 5, 0);
    }

    void quarterTurnsAreExact()
    {
        QFETCH(double, degrees);
        QFETCH(Vector3d, turned);

        QCOMPARE(Rotated(Vector3d(8, 5, 0), s_centre, degrees), turned);
    }

    void aWholeTurnChangesNoBit()
    {
        const Vector3d point(0.1, 1e9 / 3.0, 0);

        QCOMPARE(Rotated(point, Vector3d(0.7, -1.0 / 3.0, 0), 360.0), point);
        QCOMPARE(Rotated(point, Vector3d(0.7, -1.0 / 3.0, 0), -360.0), point);
    }

    void pointsTurnAsAMatrixTurnsThem()
    {
        const Vector3d point(17, 4, 0);

        for (double degrees = -360.0; degrees <= 360.0; degrees += 7.5)
        {
            const Eigen::AngleAxisd turn(degrees * std::acos(-1.0) / 180.0, s_up);
            const Vector3d expected = s_centre + turn * (point - s_centre);
            QVERIFY((Rotated(point, s_centre, degrees) - expected).norm() <= 1e-12);
        }
    }

    void everyShapeTurnsAsAWhole_data()
    {
        QTest::addColumn<Shape>("shape");

        QTest::newRow("line") << Shape(LineShape{{1, 2, 0}, {5, -4, 0}});
        QTest::newRow("circle") << Shape(CircleShape{{10, 2, 0}, 1.0 / 3.0, s_up});
        QTest::newRow("arc") << Shape(ArcShape{{9, 2, 0}, 5, {14, 2, 0}, {9, 7, 0}, -s_up});
        QTest::newRow("rectangle") << Shape(RectangleShape{
            {Vector3d(0, 0, 0), Vector3d(8, 0, 0), Vector3d(8, 6, 0), Vector3d(0, 6, 0)}});
    }

    void everyShapeTurnsAsAWhole()
    {
        QFETCH(Shape, shape);

        const Shape turned = Rotated(shape, s_centre, 33.0);

        QVERIFY(IsDrawable(turned));
        QVERIFY(!(turned == shape));
        for (const Vector3d& probe : {Vector3d(6, 9, 0), Vector3d(9, -9, 0), Vector3d(-5, -1, 0)})
        {
            QVERIFY(std::abs(DistanceTo(turned, Rotated(probe, s_centre, 33.0)) -
                             DistanceTo(shape, probe)) <= 1e-12);
        }
    }

    void theRadiusStays()
    {
        const Shape turned = Rotated(CircleShape{{10, 2, 0}, 1.0 / 3.0, s_up}, s_centre, 12.3);

        QCOMPARE(std::get<CircleShape>(turned).radius, 1.0 / 3.0);
    }
};

VESK_TESTS_WITHOUT_WINDOWS(ShapeRotationTest);
#include "ShapeRotationTest.moc"
