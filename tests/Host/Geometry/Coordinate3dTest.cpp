#include "Geometry/Coordinate3d.h"

#include "Geometry/Constants.h"
#include "Support/TestValues.h"

#include <Eigen/Geometry>

#include <cmath>
#include <limits>

Q_DECLARE_METATYPE(vesk::Vector3d)

namespace vesk
{

namespace
{

const double s_nan = std::numeric_limits<double>::quiet_NaN();
const double s_infinity = std::numeric_limits<double>::infinity();

bool IsNear(const Vector3d& a, const Vector3d& b)
{
    return Vector3dUtils::IsEqual(a, b, Constants::DOUBLE_EPS);
}

/// Whether the axes are orthogonal unit vectors and right-handed.
bool IsFrame(const Coordinate3d& frame)
{
    Eigen::Matrix3d axes;
    axes << frame.GetX(), frame.GetY(), frame.GetZ();
    const bool isOrthonormal =
        (axes.transpose() * axes - Eigen::Matrix3d::Identity()).norm() < 1e-12;
    return isOrthonormal && axes.determinant() > 0;
}

}

class Coordinate3dTest : public QObject
{
    Q_OBJECT

private slots:
    void byDefaultItIsTheWorldFrame();
    void anyTwoDirectionsGiveAFrame_data();
    void anyTwoDirectionsGiveAFrame();
    void directionsWithoutAPlaneGiveTheWorldAxes_data();
    void directionsWithoutAPlaneGiveTheWorldAxes();
    void localCoordinatesAreMeasuredAlongTheAxes();
    void localCoordinatesComeBackAlongTiltedAxes();
};

void Coordinate3dTest::byDefaultItIsTheWorldFrame()
{
    const Coordinate3d frame;

    QCOMPARE(frame.GetOrigin(), Vector3d(0, 0, 0));
    QCOMPARE(frame.GetX(), Vector3d(1, 0, 0));
    QCOMPARE(frame.GetY(), Vector3d(0, 1, 0));
    QCOMPARE(frame.GetZ(), Vector3d(0, 0, 1));
}

void Coordinate3dTest::anyTwoDirectionsGiveAFrame_data()
{
    QTest::addColumn<Vector3d>("x");
    QTest::addColumn<Vector3d>("y");

    QTest::newRow("long and short") << Vector3d(1000, 0, 0) << Vector3d(0, 0.001, 0);
    QTest::newRow("not at right angles") << Vector3d(1, 1, 0) << Vector3d(1, 3, 0.5);
    QTest::newRow("blunt angle") << Vector3d(1, 0, 0) << Vector3d(-5, 1, 0);
    QTest::newRow("downwards") << Vector3d(0, 1, 0) << Vector3d(1, 0, 0);
    QTest::newRow("huge") << Vector3d(1e200, 2e200, 0) << Vector3d(0, 1e200, 1e200);
    QTest::newRow("tiny") << Vector3d(1e-200, 0, 0) << Vector3d(1e-200, 1e-200, 0);
    QTest::newRow("nearly parallel") << Vector3d(1, 0, 0) << Vector3d(1, 1e-6, 0);
}

void Coordinate3dTest::anyTwoDirectionsGiveAFrame()
{
    QFETCH(Vector3d, x);
    QFETCH(Vector3d, y);
    const Vector3d origin(1, 2, 3);

    const Coordinate3d frame(origin, x, y);

    QVERIFY(IsFrame(frame));
    QCOMPARE(frame.GetOrigin(), origin);
    QVERIFY(IsNear(frame.GetX(), x.stableNormalized()));
    const Vector3d direction = y.stableNormalized();
    QVERIFY(std::abs(frame.GetZ().dot(direction)) < 1e-9);
    QVERIFY(frame.GetY().dot(direction) > 0);
}

void Coordinate3dTest::directionsWithoutAPlaneGiveTheWorldAxes_data()
{
    QTest::addColumn<Vector3d>("x");
    QTest::addColumn<Vector3d>("y");

    QTest::newRow("zero x") << Vector3d(0, 0, 0) << Vector3d(0, 1, 0);
    QTest::newRow("zero y") << Vector3d(0, 1, 0) << Vector3d(0, 0, 0);
    QTest::newRow("parallel") << Vector3d(0, 1, 1) << Vector3d(0, 3, 3);
    QTest::newRow("opposite") << Vector3d(0, 1, 0) << Vector3d(0, -2, 0);
    QTest::newRow("parallel but for rounding")
        << Vector3d(0.1, 0.2, 0.3) << Vector3d(0.3, 0.6, 0.9);
    QTest::newRow("not a number") << Vector3d(s_nan, 1, 0) << Vector3d(0, 0, 1);
    QTest::newRow("infinite") << Vector3d(0, 1, 0) << Vector3d(0, 0, s_infinity);
}

void Coordinate3dTest::directionsWithoutAPlaneGiveTheWorldAxes()
{
    QFETCH(Vector3d, x);
    QFETCH(Vector3d, y);

    const Coordinate3d frame(Vector3d(1, 2, 3), x, y);

    QCOMPARE(frame.GetOrigin(), Vector3d(1, 2, 3));
    QCOMPARE(frame.GetX(), Vector3d(1, 0, 0));
    QCOMPARE(frame.GetY(), Vector3d(0, 1, 0));
    QCOMPARE(frame.GetZ(), Vector3d(0, 0, 1));
}

void Coordinate3dTest::localCoordinatesAreMeasuredAlongTheAxes()
{
    const Coordinate3d frame(Vector3d(10, 20, 30), Vector3d(0, 1, 0), Vector3d(0, 0, 1));

    QVERIFY(IsNear(frame.ToWorld(Vector3d(1, 2, 3)), Vector3d(13, 21, 32)));
    QVERIFY(IsNear(frame.ToWorld(Vector3d(0, 0, 0)), Vector3d(10, 20, 30)));
}

void Coordinate3dTest::localCoordinatesComeBackAlongTiltedAxes()
{
    const Coordinate3d frame(Vector3d(10, -20, 30), Vector3d(1, 2, 3), Vector3d(-1, 0, 1));

    const Vector3d offset = frame.ToWorld(Vector3d(4, 5, 6)) - frame.GetOrigin();

    QVERIFY(std::abs(offset.dot(frame.GetX()) - 4) < 1e-12);
    QVERIFY(std::abs(offset.dot(frame.GetY()) - 5) < 1e-12);
    QVERIFY(std::abs(offset.dot(frame.GetZ()) - 6) < 1e-12);
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::Coordinate3dTest);
#include "Coordinate3dTest.moc"
