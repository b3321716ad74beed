#include "Model/Sketch.h"

#include "Support/TestValues.h"

#include <QSignalSpy>

#include <string>
#include <vector>

/// The layers of a drawing: how they change, and what they keep from changing.
class SketchLayerTest final : public QObject
{
    Q_OBJECT

private:
    /// A layer with a line on it; the line has id 1.
    struct Fixture
    {
        Fixture()
        {
            sketch.SetCurrentPen(&Pen::layer, walls);
            sketch.AddLine({0, 0, 0}, {1, 0, 0});
        }

        void Set(bool Layer::*flag, bool value)
        {
            Layer layer = *sketch.FindLayer(walls);
            layer.*flag = value;
            QVERIFY(sketch.SetLayer(layer));
        }

        Sketch sketch;
        const int walls = sketch.AddLayer(L"walls");
    };

private slots:
    void aNewDrawingHasTheBaseLayer()
    {
        const Sketch sketch;

        QCOMPARE(sketch.GetLayers().size(), std::size_t{1});
        QCOMPARE(sketch.GetLayers().front().id, int(Layer::BaseId));
        QVERIFY(sketch.GetLayers().front().isVisible);
        QVERIFY(!sketch.GetLayers().front().isLocked);
        QCOMPARE(sketch.GetCurrentPen().layer, int(Layer::BaseId));
    }

    void anAddedLayerIsAStep()
    {
        Sketch sketch;
        const std::string digest = sketch.GetDigest();

        const int id = sketch.AddLayer(L"walls");

        QCOMPARE(sketch.FindLayer(id)->name, std::wstring(L"walls"));
        QVERIFY(sketch.GetDigest() != digest);
        QCOMPARE(sketch.GetUndoText(), std::wstring(L"新建图层"));
        QCOMPARE(sketch.Undo(), 0);
        QVERIFY(sketch.FindLayer(id) == nullptr);
        QCOMPARE(sketch.GetDigest(), digest);
        QVERIFY(sketch.AddLayer(L"walls") > id);
    }

    void aLayerNeedsANameOfItsOwn()
    {
        Fixture f;
        Layer base = *f.sketch.FindLayer(Layer::BaseId);
        const std::string digest = f.sketch.GetDigest();

        QCOMPARE(f.sketch.AddLayer(L"walls"), 0);
        QCOMPARE(f.sketch.AddLayer(L""), 0);
        base.name = L"walls";
        QVERIFY(!f.sketch.SetLayer(base));
        base.name = L"";
        QVERIFY(!f.sketch.SetLayer(base));

        QCOMPARE(f.sketch.GetDigest(), digest);
        QCOMPARE(f.sketch.GetLayers().size(), std::size_t{2});
    }

    void aLayerIsChangedInOneStep()
    {
        Fixture f;
        Layer layer = *f.sketch.FindLayer(f.walls);
        QVERIFY(!f.sketch.SetLayer(layer));
        layer.name = L"doors";
        layer.colour = 3;
        const QSignalSpy changes(&f.sketch, &Sketch::changed);

        QVERIFY(f.sketch.SetLayer(layer));

        QCOMPARE(changes.count(), 1);
        QVERIFY(*f.sketch.FindLayer(f.walls) == layer);
        f.sketch.Undo();
        QCOMPARE(f.sketch.FindLayer(f.walls)->name, std::wstring(L"walls"));
        layer.id = 99;
        QVERIFY(!f.sketch.SetLayer(layer));
    }

    void onlyAnEmptyLayerCanBeRemoved()
    {
        Fixture f;
        QVERIFY(!f.sketch.RemoveLayer(f.walls));
        QVERIFY(!f.sketch.RemoveLayer(Layer::BaseId));
        QVERIFY(!f.sketch.RemoveLayer(99));
        f.sketch.Erase(1);

        QVERIFY(f.sketch.RemoveLayer(f.walls));

        QVERIFY(f.sketch.FindLayer(f.walls) == nullptr);
        QCOMPARE(f.sketch.GetCurrentPen().layer, int(Layer::BaseId));
        QCOMPARE(f.sketch.AddLine({0, 0, 0}, {1, 0, 0}), 2);
    }

    void aLayerThatIsUndoneIsNoLongerTheCurrentOne()
    {
        Sketch sketch;
        sketch.SetCurrentPen(&Pen::layer, sketch.AddLayer(L"walls"));

        sketch.Undo();

        QCOMPARE(sketch.GetCurrentPen().layer, int(Layer::BaseId));
        sketch.SetCurrentPen(&Pen::layer, 99);
        QCOMPARE(sketch.GetCurrentPen().layer, int(Layer::BaseId));
    }

    void whatIsOnALockedLayerCannotBeChanged()
    {
        Fixture f;
        f.Set(&Layer::isLocked, true);
        const std::string digest = f.sketch.GetDigest();
        const Shape other = LineShape{{0, 0, 0}, {2, 0, 0}};

        QVERIFY(!f.sketch.CanChange(1));
        QVERIFY(!f.sketch.CanPick(1));
        QVERIFY(!f.sketch.Replace({{1, other}}));
        QVERIFY(!f.sketch.Erase(1));
        QVERIFY(!f.sketch.SetPen({1}, &Pen::colour, 2));
        QVERIFY(!f.sketch.SetPen({1}, &Pen::layer, Layer::BaseId));
        QCOMPARE(f.sketch.GetDigest(), digest);

        f.Set(&Layer::isLocked, false);
        QVERIFY(f.sketch.CanChange(1) && f.sketch.CanPick(1));
        QVERIFY(f.sketch.SetPen({1}, &Pen::layer, Layer::BaseId));
        QVERIFY(!f.sketch.SetPen({1}, &Pen::layer, 99));
    }

    void whatIsOnAHiddenLayerCanBeChangedButNotPicked()
    {
        Fixture f;

        f.Set(&Layer::isVisible, false);

        QVERIFY(!f.sketch.CanPick(1));
        QVERIFY(f.sketch.CanChange(1));
        QVERIFY(!f.sketch.CanPick(99));
    }

    void aStepBeforeTheLockCanStillBeUndone()
    {
        Fixture f;
        f.Set(&Layer::isLocked, true);

        f.sketch.Undo();
        QCOMPARE(f.sketch.Undo(), 1);

        QVERIFY(f.sketch.GetEntities().empty());
    }
};

VESK_TESTS_WITHOUT_WINDOWS(SketchLayerTest);
#include "SketchLayerTest.moc"
