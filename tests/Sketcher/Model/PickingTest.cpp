#include "Model/Picking.h"

#include "Model/AreaSelection.h"
#include "Model/Sketch.h"
#include "Support/TestValues.h"
#include "Support/TestView.h"

class PickingTest final : public QObject
{
    Q_OBJECT

private slots:
    void whatLayersForbidIsNotPicked_data()
    {
        QTest::addColumn<bool>("isVisible");
        QTest::addColumn<bool>("isLocked");

        QTest::newRow("hidden") << false << false;
        QTest::newRow("locked") << true << true;
    }

    void whatLayersForbidIsNotPicked()
    {
        QFETCH(bool, isVisible);
        QFETCH(bool, isLocked);
        Sketch sketch;
        vesk::test::TestView view{1, nullptr};
        const int far = sketch.AddLine({0, 5, 0}, {40, 5, 0});
        const int layer = sketch.AddLayer(L"walls");
        sketch.SetCurrentPen(&Pen::layer, layer);
        sketch.AddLine({0, 0, 0}, {40, 0, 0});

        Layer changed = *sketch.FindLayer(layer);
        changed.isVisible = isVisible;
        changed.isLocked = isLocked;
        sketch.SetLayer(changed);

        QCOMPARE(PickEntity(sketch, {20, 0, 0}, &view), far);
        const Area area = Area::Between({-1, -1, 0}, {41, 9, 0});
        QCOMPARE(FindInArea(sketch, area, AreaRule::Holds), std::vector<int>{far});
        QCOMPARE(FindInArea(sketch, area, AreaRule::Touches), std::vector<int>{far});
    }

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
