#include "Geometry/Intervald.h"

#include "Support/TestValues.h"

#include <limits>

namespace vesk
{

class IntervaldTest : public QObject
{
    Q_OBJECT

private slots:
    void keepsItsBounds();
    void containsWhatLiesInsideAndOnTheBounds_data();
    void containsWhatLiesInsideAndOnTheBounds();
};

void IntervaldTest::keepsItsBounds()
{
    constexpr Intervald interval(-1.5, 2.5);

    QCOMPARE(interval.GetMin(), -1.5);
    QCOMPARE(interval.GetMax(), 2.5);
}

void IntervaldTest::containsWhatLiesInsideAndOnTheBounds_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<bool>("isContained");

    QTest::newRow("below") << -1.0000001 << false;
    QTest::newRow("lower bound") << -1.0 << true;
    QTest::newRow("inside") << 0.0 << true;
    QTest::newRow("upper bound") << 2.0 << true;
    QTest::newRow("above") << 2.0000001 << false;
    QTest::newRow("infinity") << std::numeric_limits<double>::infinity() << false;
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << false;
}

void IntervaldTest::containsWhatLiesInsideAndOnTheBounds()
{
    QFETCH(double, value);
    QFETCH(bool, isContained);

    QCOMPARE(Intervald(-1, 2).Contains(value), isContained);
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::IntervaldTest);
#include "IntervaldTest.moc"
