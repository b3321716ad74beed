#include "Model/Sketch.h"

#include "Model/SketchEntities.h"
#include "ShapeValues.h"
#include "Support/TestValues.h"

#include <QSignalSpy>

#include <functional>
#include <limits>
#include <string>
#include <utility>
#include <vector>

using vesk::Vector3d;

Q_DECLARE_METATYPE(std::function<void(Sketch&)>)

/// Steps: what is undone and redone, what they are named, and what is one step.
class SketchStepTest final : public QObject
{
    Q_OBJECT

private slots:
    void undoneStepsComeBackInTheirOrder()
    {
        Sketch sketch;
        const int first = sketch.AddLine({0, 0, 0}, {1, 0, 0});
        const int second = sketch.AddLine({0, 0, 0}, {2, 0, 0});
        sketch.Erase(first);
        const std::string digest = sketch.GetDigest();
        while (sketch.CanUndo())
            sketch.Undo();
        QCOMPARE(sketch.GetDigest(), Sketch().GetDigest());

        QCOMPARE(sketch.Redo(), first);
        QCOMPARE(sketch.Redo(), second);
        QCOMPARE(sketch.Redo(), first);
        QCOMPARE(sketch.GetLastUndone(), first);
        QVERIFY(!sketch.CanRedo());
        QCOMPARE(sketch.Redo(), 0);

        QCOMPARE(IdsOf(sketch), (Ids{second}));
        QCOMPARE(sketch.GetDigest(), digest);
    }

    void addingAtTheEndKeepsTheRevision()
    {
        Sketch sketch;
        sketch.AddLine({0, 0, 0}, {1, 0, 0});
        const unsigned revision = sketch.GetRevision();

        sketch.AddLine({0, 0, 0}, {2, 0, 0});
        sketch.AddLayer(L"Holes");
        sketch.SetName(L"Plate");
        sketch.SetCurrentPen(&Pen::colour, 1);

        QCOMPARE(sketch.GetRevision(), revision);
    }

    void whatLeavesShapesKeepsTheirRevision()
    {
        Sketch sketch;
        sketch.AddLine({0, 0, 0}, {1, 0, 0});
        sketch.AddLine({0, 0, 0}, {2, 0, 0});
        sketch.Erase(1);
        const unsigned revision = sketch.GetShapeRevision();
        Layer layer = sketch.GetLayers().front();
        layer.isVisible = false;

        sketch.SetPen({2}, &Pen::colour, 1);
        sketch.Undo();
        sketch.Undo();
        sketch.AddLine({0, 0, 0}, {3, 0, 0});
        sketch.SetLayer(layer);

        QCOMPARE(sketch.GetShapeRevision(), revision);
    }

    void anotherShapeIsAnotherRevisionOfTheShapes_data()
    {
        QTest::addColumn<std::function<void(Sketch&)>>("change");

        const auto add = [](const char* name, std::function<void(Sketch&)> change) {
            QTest::newRow(name) << std::move(change);
        };
        add("shape", [](Sketch& sketch) {
            sketch.Replace({{1, LineShape{{0, 0, 0}, {5, 0, 0}}}});
        });
        add("erased", [](Sketch& sketch) { sketch.Erase(1); });
        add("undo", [](Sketch& sketch) { sketch.Undo(); });
        add("the same drawing opened again",
            [](Sketch& sketch) { sketch.Restore(sketch.GetContent()); });
    }

    void anotherShapeIsAnotherRevisionOfTheShapes()
    {
        QFETCH(std::function<void(Sketch&)>, change);
        Sketch sketch;
        sketch.AddLine({0, 0, 0}, {1, 0, 0});
        sketch.AddLine({0, 0, 0}, {2, 0, 0});
        const unsigned revision = sketch.GetShapeRevision();

        change(sketch);

        QVERIFY(sketch.GetShapeRevision() != revision);
    }

    void anyOtherChangeIsAnotherRevision_data()
    {
        QTest::addColumn<std::function<void(Sketch&)>>("change");

        const auto add = [](const char* name, std::function<void(Sketch&)> change) {
            QTest::newRow(name) << std::move(change);
        };
        add("shape", [](Sketch& sketch) {
            sketch.Replace({{1, LineShape{{0, 0, 0}, {5, 0, 0}}}});
        });
        add("pen", [](Sketch& sketch) { sketch.SetPen({2}, &Pen::colour, 1); });
        add("the last erased", [](Sketch& sketch) { sketch.Erase(2); });
        add("undo", [](Sketch& sketch) { sketch.Undo(); });
        add("erased one comes back", [](Sketch& sketch) {
            sketch.Erase(1);
            sketch.Undo();
        });
        add("layer hidden", [](Sketch& sketch) {
            Layer layer = sketch.GetLayers().front();
            layer.isVisible = false;
            sketch.SetLayer(layer);
        });
        add("new drawing", [](Sketch& sketch) { sketch.Clear(); });
        add("the same drawing opened again",
            [](Sketch& sketch) { sketch.Restore(sketch.GetContent()); });
    }

    void anyOtherChangeIsAnotherRevision()
    {
        QFETCH(std::function<void(Sketch&)>, change);
        Sketch sketch;
        sketch.AddLine({0, 0, 0}, {1, 0, 0});
        sketch.AddLine({0, 0, 0}, {2, 0, 0});
        const unsigned revision = sketch.GetRevision();

        change(sketch);

        QVERIFY(sketch.GetRevision() != revision);
    }

    void aNewStepForgetsTheUndoneOnes()
    {
        Sketch sketch;
        sketch.AddLine({0, 0, 0}, {1, 0, 0});
        sketch.Undo();
        QVERIFY(sketch.CanRedo());

        sketch.AddLine({0, 0, 0}, {2, 0, 0});

        QVERIFY(!sketch.CanRedo());
        QVERIFY(sketch.GetRedoText().empty());
    }

    void stepsAreNamed()
    {
        Sketch sketch;
        QVERIFY(sketch.GetUndoText().empty());
        const int id = sketch.Add(CircleShape{{1, 2, 0}, 3.0, {0, 0, 1}});
        QCOMPARE(sketch.GetUndoText(), std::wstring(L"圆"));
        sketch.Erase({id}, L"剪切");
        QCOMPARE(sketch.GetUndoText(), std::wstring(L"剪切"));

        sketch.Undo();

        QCOMPARE(sketch.GetUndoText(), std::wstring(L"圆"));
        QCOMPARE(sketch.GetRedoText(), std::wstring(L"剪切"));
    }

    void aNameIsAStep()
    {
        Sketch sketch;
        const std::wstring before = sketch.GetName();
        sketch.SetName(L"plan");
        QCOMPARE(sketch.GetUndoText(), std::wstring(L"图名"));

        QCOMPARE(sketch.Undo(), 0);
        QCOMPARE(sketch.GetName(), before);
        sketch.Redo();

        QCOMPARE(sketch.GetName(), std::wstring(L"plan"));
    }

    void aNameCanBeGivenWithoutAStep()
    {
        Sketch sketch;
        sketch.SetNamesWithoutSteps();
        const QSignalSpy changes(&sketch, &Sketch::changed);

        sketch.SetName(L"plan");
        sketch.SetName(L"plan");

        QCOMPARE(sketch.GetName(), std::wstring(L"plan"));
        QVERIFY(!sketch.CanUndo());
        QCOMPARE(changes.count(), 1);
        Sketch other;
        other.SetName(L"plan");
        QCOMPARE(sketch.GetDigest(), other.GetDigest());
    }

    void inANewDrawingANameIsAStepAgain()
    {
        Sketch sketch;
        sketch.SetNamesWithoutSteps();

        sketch.Clear();
        sketch.SetName(L"plan");

        QVERIFY(sketch.CanUndo());
    }

    void severalShapesAreOneStep()
    {
        Sketch sketch;
        Pen red;
        red.colour = 1;

        const Ids ids = sketch.Add(
            {{LineShape{{0, 0, 0}, {1, 0, 0}}, {}}, {CircleShape{{1, 2, 0}, 3.0, {0, 0, 1}}, red}},
            L"粘贴");

        QCOMPARE(ids, (Ids{1, 2}));
        QCOMPARE(sketch.Find(2)->pen.colour, 1);
        QCOMPARE(sketch.Undo(), 1);
        QVERIFY(sketch.GetEntities().empty());
    }

    void ofSeveralShapesAllOrNoneAreDrawn()
    {
        Sketch sketch;
        const LineShape line{{0, 0, 0}, {1, 0, 0}};
        Pen nowhere;
        nowhere.layer = 7;

        QVERIFY(sketch.Add({{line, {}}, {LineShape(), {}}}, L"粘贴").empty());
        QVERIFY(sketch.Add({{line, {}}, {line, nowhere}}, L"粘贴").empty());
        QVERIFY(sketch.Add({}, L"粘贴").empty());

        QVERIFY(sketch.GetEntities().empty());
        QVERIFY(!sketch.CanUndo());
        QCOMPARE(sketch.AddLine({0, 0, 0}, {1, 0, 0}), 1);
    }

    void severalAreErasedInOneStep()
    {
        Sketch sketch;
        for (int length = 1; length <= 5; ++length)
            sketch.AddLine({0, 0, 0}, {1.0 * length, 0, 0});
        const std::string digest = sketch.GetDigest();

        QVERIFY(!sketch.Erase({2, 99}));
        QVERIFY(!sketch.Erase(Ids{}));
        QCOMPARE(sketch.GetDigest(), digest);
        QVERIFY(sketch.Erase({4, 2}));
        QCOMPARE(IdsOf(sketch), (Ids{1, 3, 5}));

        QCOMPARE(sketch.Undo(), 4);
        QCOMPARE(IdsOf(sketch), (Ids{1, 2, 3, 4, 5}));
        QCOMPARE(sketch.GetDigest(), digest);
    }

    void anotherDrawingIsInsertedInOneStep()
    {
        Sketch other;
        const int walls = other.AddLayer(L"walls");
        other.SetCurrentPen(&Pen::layer, walls);
        other.AddLine({0, 0, 0}, {1, 0, 0});
        other.SetCurrentPen(&Pen::layer, Layer::BaseId);
        other.AddLine({0, 0, 0}, {2, 0, 0});
        Sketch sketch;
        sketch.AddLayer(L"axes");
        sketch.AddLine({0, 0, 0}, {9, 0, 0});
        const std::string digest = sketch.GetDigest();

        QCOMPARE(sketch.Insert(other.GetContent(), L"粘贴"), (Ids{2, 3}));

        QCOMPARE(sketch.LayerOf(*sketch.Find(2)).name, std::wstring(L"walls"));
        QCOMPARE(sketch.Find(3)->pen.layer, int(Layer::BaseId));
        QCOMPARE(sketch.Insert(other.GetContent(), L"粘贴"), (Ids{4, 5}));
        QCOMPARE(sketch.Find(4)->pen.layer, sketch.Find(2)->pen.layer);
        QCOMPARE(sketch.GetLayers().size(), std::size_t{3});
        QVERIFY(sketch.AddLayer(L"doors") > sketch.Find(2)->pen.layer);
        sketch.Undo();
        sketch.Undo();
        QCOMPARE(sketch.Undo(), 2);
        QCOMPARE(sketch.GetDigest(), digest);
    }

    void layersWithoutEntitiesAreNotInserted()
    {
        Sketch other;
        Layer base = other.GetLayers().front();
        base.name = L"base of the other";
        other.SetLayer(base);
        other.SetCurrentPen(&Pen::layer, other.AddLayer(L"walls"));
        other.AddLayer(L"axes");
        other.AddLine({0, 0, 0}, {1, 0, 0});
        Sketch sketch;

        QCOMPARE(sketch.Insert(other.GetContent(), L"粘贴"), Ids{1});

        QCOMPARE(sketch.GetLayers().size(), std::size_t{2});
        QCOMPARE(sketch.GetLayers().back().name, std::wstring(L"walls"));
    }

    void anInsertionCanBeWorkedOutBefore()
    {
        Sketch other;
        other.SetCurrentPen(&Pen::layer, other.AddLayer(L"walls"));
        other.AddLine({0, 0, 0}, {1, 0, 0});
        Sketch sketch;
        sketch.AddLine({0, 0, 0}, {9, 0, 0});
        Sketch same;
        same.AddLine({0, 0, 0}, {9, 0, 0});
        same.Insert(other.GetContent(), L"粘贴");

        SketchInsertion insertion = MakeInsertion(other.GetContent(), sketch.GetInsertionPlace());
        QCOMPARE(sketch.Insert(std::move(insertion), L"粘贴"), Ids{2});

        QCOMPARE(sketch.GetDigest(), same.GetDigest());
        QCOMPARE(sketch.GetDigest(), DigestOf(sketch.GetContent()).ToText());
        QCOMPARE(sketch.GetInsertionPlace() == same.GetInsertionPlace(), true);
        sketch.Undo();
        sketch.Redo();
        QCOMPARE(sketch.GetDigest(), same.GetDigest());
    }

    void anInsertionForAnotherPlaceIsRefused_data()
    {
        QTest::addColumn<std::function<void(Sketch&)>>("change");

        const auto add = [](const char* name, std::function<void(Sketch&)> change) {
            QTest::newRow(name) << std::move(change);
        };
        add("entity", [](Sketch& sketch) { sketch.AddLine({0, 0, 0}, {9, 0, 0}); });
        add("layer", [](Sketch& sketch) { sketch.AddLayer(L"walls"); });
        add("name of a layer", [](Sketch& sketch) {
            Layer layer = sketch.GetLayers().front();
            layer.name = L"walls";
            sketch.SetLayer(layer);
        });
        add("layer undone", [](Sketch& sketch) {
            sketch.AddLayer(L"walls");
            sketch.Undo();
        });
    }

    void anInsertionForAnotherPlaceIsRefused()
    {
        QFETCH(std::function<void(Sketch&)>, change);
        Sketch other;
        other.AddLine({0, 0, 0}, {1, 0, 0});
        Sketch sketch;
        SketchInsertion insertion = MakeInsertion(other.GetContent(), sketch.GetInsertionPlace());

        change(sketch);
        const std::string digest = sketch.GetDigest();

        QVERIFY(sketch.Insert(std::move(insertion), L"粘贴").empty());
        QCOMPARE(sketch.GetDigest(), digest);
    }

    /// However many entities a step has, undoing it computes nothing anew.
    void theDigestOfAStepIsComputedOnce()
    {
        SketchContent content;
        Digest digest = DigestOf(content);
        SketchChange change;
        change.layers[1] = Layer();
        change.difference = Digest();
        change.difference->Add("known");
        const Digest before = digest;
        Digest after = digest;
        after += *change.difference;

        Exchange(content, digest, change);
        QCOMPARE(digest.ToText(), after.ToText());

        Exchange(content, digest, change);
        QCOMPARE(digest.ToText(), before.ToText());
    }

    void whatIsNoDrawingIsNotInserted()
    {
        Sketch sketch;
        SketchContent torn = sketch.GetContent();
        torn.entities = {Entity{1, LineShape{{0, 0, 0}, {1, 0, 0}}, {}}}; // Greater than lastId.

        QVERIFY(sketch.Insert(torn, L"粘贴").empty());
        QVERIFY(sketch.Insert(Sketch().GetContent(), L"粘贴").empty());

        QVERIFY(!sketch.CanUndo());
    }
};

VESK_TESTS_WITHOUT_WINDOWS(SketchStepTest);
#include "SketchStepTest.moc"
