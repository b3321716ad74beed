#include "Model/Picking.h"

#include "Model/Sketch.h"
#include "Support/TestValues.h"
#include "Support/TestView.h"

class PickingTest final : public QObject
{
    Q_OBJECT

private slots:
    void theNearestWithinReachIsPicked()
    {
        Sketch sketch;
        vesk::test::TestView view(1, nullptr);
        const int near = sketch.AddLine({0, 4, 0}, {10, 4, 0});
        sketch.AddLine({0, 9, 0}, {10, 9, 0});

        QCOMPARE(PickEntity(sketch, {5, 0, 0}, &view), near);
        QCOMPARE(PickEntity(sketch, {5, -6, 0}, &view), near);
        QCOMPARE(PickEntity(sketch, {5, -6.1, 0}, &view), 0);
    }

    void nothingIsPickedWithoutAView()
    {
        Sketch sketch;
        sketch.AddLine({0, 4, 0}, {10, 4, 0});

        QCOMPARE(PickEntity(sketch, {5, 0, 0}, nullptr), 0);
    }

    void tenPixelsAreWithinReach()
    {
        vesk::test::TestView view(1, nullptr);
        view.GetCamera().SetWorldPerPixel(0.1);

        QCOMPARE(CursorReach(&view), 1.0);
        QCOMPARE(CursorReach(nullptr), 0.0);
    }

    void ofEqualsTheLastIsPicked()
    {
        Sketch sketch;
        vesk::test::TestView view(1, nullptr);
        sketch.AddLine({0, 0, 0}, {10, 0, 0});
        const int last = sketch.AddLine({0, 0, 0}, {10, 0, 0});

        QCOMPARE(PickEntity(sketch, {5, 1, 0}, &view), last);
    }
};

VESK_TESTS(PickingTest);
#include "PickingTest.moc"
