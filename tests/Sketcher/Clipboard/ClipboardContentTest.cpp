#include "Clipboard/ClipboardContent.h"

#include "Model/Sketch.h"
#include "ShapeValues.h"
#include "Support/TestValues.h"

using vesk::Vector3d;

namespace
{

/// Three lines, the second one on a layer of its own; another layer is empty.
struct Fixture
{
    Fixture()
    {
        sketch.AddLine({0, 0, 0}, {1, 0, 0});
        sketch.AddLayer(L"axes");
        sketch.SetCurrentPen(&Pen::layer, sketch.AddLayer(L"walls"));
        sketch.AddLine({0, 1, 0}, {1, 1, 0});
        sketch.SetCurrentPen(&Pen::layer, Layer::BaseId);
        sketch.AddLine({0, 2, 0}, {1, 2, 0});
    }

    Sketch sketch;
};

}

class ClipboardContentTest final : public QObject
{
    Q_OBJECT

private slots:
    void contentIsInTheOrderOfTheDrawing()
    {
        Fixture f;

        const SketchContent content = ContentOf(f.sketch, {3, 2});

        QVERIFY(IsValid(content));
        QCOMPARE(content.name, f.sketch.GetName());
        QCOMPARE(content.entities.size(), std::size_t{2});
        QVERIFY(content.entities[0] == *f.sketch.Find(2));
        QVERIFY(content.entities[1] == *f.sketch.Find(3));
    }

    void contentHasTheLayersThatItNeeds()
    {
        Fixture f;

        const SketchContent content = ContentOf(f.sketch, {2});

        QCOMPARE(content.layers.size(), std::size_t{2});
        QCOMPARE(content.layers[0].id, int(Layer::BaseId));
        QCOMPARE(content.layers[1].name, std::wstring(L"walls"));
    }

    void everythingIsMoved()
    {
        Fixture f;

        const SketchContent moved = Translated(ContentOf(f.sketch, {1, 2}), {3, -4, 0});

        QCOMPARE(moved.entities[0].shape, Shape(LineShape{{3, -4, 0}, {4, -4, 0}}));
        QCOMPARE(moved.entities[1].shape, Shape(LineShape{{3, -3, 0}, {4, -3, 0}}));
    }

    void contentIsMovedAsideUntilItCoversNothing_data()
    {
        QTest::addColumn<int>("least");
        QTest::addColumn<int>("drawn");
        QTest::addColumn<int>("count");

        QTest::newRow("an empty drawing") << 0 << 0 << 0;
        QTest::newRow("once there") << 0 << 1 << 1;
        QTest::newRow("twice there") << 0 << 2 << 2;
        QTest::newRow("not at its own place") << 1 << 0 << 1;
        QTest::newRow("not at its own place, once there") << 1 << 2 << 2;
    }

    void contentIsMovedAsideUntilItCoversNothing()
    {
        QFETCH(int, least);
        QFETCH(int, drawn);
        QFETCH(int, count);
        constexpr double Step = 0.1;
        Fixture f;
        const SketchContent content = ContentOf(f.sketch, {1});
        Sketch other;
        for (int i = 0; i < drawn; ++i)
            other.Insert(Translated(content, {i * Step, i * -Step, 0}), L"粘贴");

        const Vector3d way = FindFreeWay(other, content, Step, least);

        QCOMPARE(way, Vector3d(count * Step, count * -Step, 0));
    }
};

VESK_TESTS(ClipboardContentTest);
#include "ClipboardContentTest.moc"
