#include "Model/SketchBounds.h"

#include "Model/Sketch.h"
#include "Support/TestValues.h"

class SketchBoundsTest final : public QObject
{
    Q_OBJECT

private slots:
    void anEmptyDrawingHasNone() { QVERIFY(!BoundsOf(Sketch()).has_value()); }

    void theyHoldAllThatIsVisible()
    {
        Sketch sketch;
        sketch.AddLine({-1, 2, 0}, {3, 4, 0});
        sketch.Add(CircleShape{{10, 0, 0}, 5.0, {0, 0, 1}});
        sketch.SetCurrentPen(&Pen::layer, sketch.AddLayer(L"far"));
        sketch.AddLine({1000, 0, 0}, {1000, 1000, 0});
        Layer far = sketch.GetLayers().back();
        far.isVisible = false;

        QVERIFY(sketch.SetLayer(far));

        QCOMPARE(BoundsOf(sketch)->low.x(), -1.0);
        QCOMPARE(BoundsOf(sketch)->low.y(), -5.0);
        QCOMPARE(BoundsOf(sketch)->high.x(), 15.0);
        QCOMPARE(BoundsOf(sketch)->high.y(), 5.0);
    }
};

VESK_TESTS_WITHOUT_WINDOWS(SketchBoundsTest);
#include "SketchBoundsTest.moc"
