#include "View/UiViewUtility.h"

#include "Host/View/StubView.h"
#include "Support/TestValues.h"

#include <limits>

namespace vesk
{

namespace
{

constexpr double MaxDouble = std::numeric_limits<double>::max();
const double s_infinity = std::numeric_limits<double>::infinity();
const double s_nan = std::numeric_limits<double>::quiet_NaN();

/// Returns world coordinates unchanged.
class PlainModelView final : public IModelView
{
public:
    void WorldToScreen(const Vector3d& world, double& x, double& y, double& depth) const override
    {
        x = world.x();
        y = world.y();
        depth = world.z();
    }
    Vector3d ScreenToWorld(double x, double y) const override { return {x, y, 0}; }
    double GetWorldPerPixel() const override { return 0.25; }
    int GetWidth() const override { return 800; }
    int GetHeight() const override { return 600; }
};

}

class UiViewUtilityTest : public QObject
{
    Q_OBJECT

private slots:
    void aPositionIsRoundedToTheNearestPixel_data();
    void aPositionIsRoundedToTheNearestPixel();
    void aPositionBeyondTheNumbersIsCutOff();
    void whatIsNoNumberIsZero();
    void withoutViewEverythingIsZero();
    void withoutModelViewEverythingIsZero();
    void aWidthInPixelsIsAWorldWidth();
};

void UiViewUtilityTest::aPositionIsRoundedToTheNearestPixel_data()
{
    QTest::addColumn<double>("exact");
    QTest::addColumn<int>("pixel");

    QTest::newRow("on it") << 12.0 << 12;
    QTest::newRow("a little more") << 12.49 << 12;
    QTest::newRow("almost the next") << 12.51 << 13;
    QTest::newRow("a little less than none") << -0.4 << 0;
    QTest::newRow("left of the view") << -12.6 << -13;
}

void UiViewUtilityTest::aPositionIsRoundedToTheNearestPixel()
{
    QFETCH(double, exact);
    QFETCH(int, pixel);
    PlainModelView modelView;
    const StubView view(1, &modelView);
    int x = -1;
    int y = -1;
    float depth = -1;

    UiViewUtility::WorldPositionToScreenPosition(&view, Vector3d(exact, -exact, 2.5), x, y, depth);

    QCOMPARE(x, pixel);
    QCOMPARE(y, -pixel);
    QCOMPARE(depth, 2.5F);
}

void UiViewUtilityTest::aPositionBeyondTheNumbersIsCutOff()
{
    PlainModelView modelView;
    const StubView view(1, &modelView);
    int x = 0;
    int y = 0;
    float depth = 0;

    UiViewUtility::WorldPositionToScreenPosition(&view, Vector3d(1e12, -s_infinity, MaxDouble), x,
                                                 y, depth);

    QCOMPARE(x, std::numeric_limits<int>::max());
    QCOMPARE(y, std::numeric_limits<int>::min());
    QCOMPARE(depth, std::numeric_limits<float>::max());
}

void UiViewUtilityTest::whatIsNoNumberIsZero()
{
    PlainModelView modelView;
    const StubView view(1, &modelView);
    int x = -1;
    int y = -1;
    float depth = -1;

    UiViewUtility::WorldPositionToScreenPosition(&view, Vector3d(s_nan, s_nan, s_nan), x, y, depth);

    QCOMPARE(x, 0);
    QCOMPARE(y, 0);
    QCOMPARE(depth, 0.0F);
}

void UiViewUtilityTest::withoutViewEverythingIsZero()
{
    int x = -1;
    int y = -1;
    float depth = -1;

    UiViewUtility::WorldPositionToScreenPosition(nullptr, Vector3d(1, 2, 3), x, y, depth);

    QCOMPARE(x, 0);
    QCOMPARE(y, 0);
    QCOMPARE(depth, 0.0F);
    QCOMPARE(UiViewUtility::ComputeWorldWidthFromPixel(nullptr, 4), 0.0);
}

void UiViewUtilityTest::withoutModelViewEverythingIsZero()
{
    const StubView view(1);
    int x = -1;
    int y = -1;
    float depth = -1;

    UiViewUtility::WorldPositionToScreenPosition(&view, Vector3d(1, 2, 3), x, y, depth);

    QCOMPARE(x, 0);
    QCOMPARE(y, 0);
    QCOMPARE(depth, 0.0F);
    QCOMPARE(UiViewUtility::ComputeWorldWidthFromPixel(&view, 4), 0.0);
}

void UiViewUtilityTest::aWidthInPixelsIsAWorldWidth()
{
    PlainModelView modelView;
    const StubView view(1, &modelView);

    QCOMPARE(UiViewUtility::ComputeWorldWidthFromPixel(&view, 6), 1.5);
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::UiViewUtilityTest);
#include "UiViewUtilityTest.moc"
