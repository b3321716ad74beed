#include "Geometry/Vector3d.h"

#include "Support/TestValues.h"

#include <limits>

namespace vesk
{

class Vector3dTest : public QObject
{
    Q_OBJECT

private slots:
    void pointsAtMostTheToleranceApartAreEqual_data();
    void pointsAtMostTheToleranceApartAreEqual();
};

void Vector3dTest::pointsAtMostTheToleranceApartAreEqual_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::addColumn<double>("tolerance");
    QTest::addColumn<bool>("isEqual");

    const double nan = std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("the same point") << 0.0 << 0.0 << 0.0 << true;
    QTest::newRow("exactly the tolerance") << 3.0 << 4.0 << 5.0 << true;
    QTest::newRow("each axis within, the distance not") << 3.0 << 4.0 << 4.5 << false;
    QTest::newRow("too tiny to be squared") << 1e-200 << 0.0 << 0.0 << false;
    QTest::newRow("too large to be squared") << 1e200 << 0.0 << 2e200 << true;
    QTest::newRow("not a number") << nan << 0.0 << 1.0 << false;
}

void Vector3dTest::pointsAtMostTheToleranceApartAreEqual()
{
    QFETCH(double, x);
    QFETCH(double, y);
    QFETCH(double, tolerance);
    QFETCH(bool, isEqual);
    const Vector3d a(0, 0, 7);
    const Vector3d b(x, y, 7);

    QCOMPARE(Vector3dUtils::IsEqual(a, b, tolerance), isEqual);
    QCOMPARE(Vector3dUtils::IsEqual(b, a, tolerance), isEqual);
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::Vector3dTest);
#include "Vector3dTest.moc"
