#include "Model/SketchContent.h"

#include "Model/DocumentFile.h"
#include "Model/Sketch.h"
#include "Support/TestValues.h"

#include <QSignalSpy>

#include <functional>
#include <string>
#include <vector>

using Break = std::function<void(SketchContent&)>;

Q_DECLARE_METATYPE(Break)

class SketchContentTest final : public QObject
{
    Q_OBJECT

private:
    static SketchContent SomeContent()
    {
        Sketch sketch;
        sketch.SetCurrentPen(&Pen::layer, sketch.AddLayer(L"walls"));
        sketch.AddLine({0, 0, 0}, {1, 0, 0});
        sketch.AddLine({0, 0, 0}, {2, 0, 0});
        return sketch.GetContent();
    }

private slots:
    void aThingIsFoundByItsIdWhateverIdsAreMissing()
    {
        struct Thing
        {
            int id;
        };
        for (int missing = 0; missing < 1024; ++missing)
        {
            std::vector<Thing> things;
            for (int id = -2; id < 8; ++id)
            {
                if ((missing >> (id + 2)) % 2 == 0)
                    things.push_back({id});
            }
            for (int id = -4; id < 12; ++id)
            {
                const auto isNotLess = [id](const Thing& thing) { return thing.id >= id; };
                const auto expected = std::find_if(things.begin(), things.end(), isNotLess);
                QCOMPARE(PlaceOf(things, id) - things.begin(), expected - things.begin());
                const bool isThere = expected != things.end() && expected->id == id;
                QCOMPARE(FindById(things, id), isThere ? &*expected : nullptr);
            }
        }
        const std::vector<Thing> far = {{-2000000000}, {0}, {2000000000}};
        QCOMPARE(FindById(far, 2000000000), &far[2]);
        QCOMPARE(FindById(far, 1), nullptr);
    }

    void contentOfADrawingIsValid()
    {
        QVERIFY(IsValid(SomeContent()));
        QVERIFY(IsValid(Sketch().GetContent()));
    }

    void brokenContentIsNotValid_data()
    {
        QTest::addColumn<Break>("breakIt");

        const auto row = [](const char* name, const Break& breakIt) {
            QTest::newRow(name) << breakIt;
        };
        row("no layer", [](SketchContent& c) { c.layers.clear(); });
        row("no base layer", [](SketchContent& c) { c.layers.erase(c.layers.begin()); });
        row("same layer names", [](SketchContent& c) { c.layers[1].name = c.layers[0].name; });
        row("layer without a name", [](SketchContent& c) { c.layers[1].name.clear(); });
        row("layer twice", [](SketchContent& c) { c.layers[1].id = 0; });
        row("layer after the last", [](SketchContent& c) { c.lastLayerId = 0; });
        row("layer of no colour", [](SketchContent& c) { c.layers[1].colour = 99; });
        row("entity twice", [](SketchContent& c) { c.entities[1].id = c.entities[0].id; });
        row("entities out of order", [](SketchContent& c) { c.entities[0].id = 9; });
        row("entity zero", [](SketchContent& c) { c.entities[0].id = 0; });
        row("entity after the last", [](SketchContent& c) { c.lastId = 1; });
        row("negative last", [](SketchContent& c) {
            c.entities.clear();
            c.lastId = -1;
        });
        row("no shape", [](SketchContent& c) { c.entities[0].shape = LineShape(); });
        row("unknown layer", [](SketchContent& c) { c.entities[0].pen.layer = 7; });
        row("unknown style", [](SketchContent& c) { c.entities[0].pen.style = -1; });
        row("unknown colour", [](SketchContent& c) { c.entities[0].pen.colour = 7; });
        row("unknown width", [](SketchContent& c) { c.entities[0].pen.width = 9; });
        row("entity ids", [](SketchContent& c) { c.lastId = SketchContent::GreatestId + 1; });
        row("layer ids", [](SketchContent& c) { c.lastLayerId = SketchContent::GreatestId + 1; });
        row("current layer", [](SketchContent& c) { c.currentPen.layer = 7; });
    }

    void brokenContentIsNotValid()
    {
        QFETCH(Break, breakIt);
        SketchContent content = SomeContent();
        Sketch sketch;
        sketch.AddLine({0, 0, 0}, {5, 0, 0});
        const std::string digest = sketch.GetDigest();

        breakIt(content);

        QVERIFY(!IsValid(content));
        QVERIFY(!sketch.Restore(content));
        QCOMPARE(sketch.GetDigest(), digest);
        QVERIFY(sketch.CanUndo());
    }

    void whenIdsOfLayersRunOutNothingIsInserted()
    {
        SketchContent content = SomeContent();
        content.lastLayerId = SketchContent::GreatestId;
        Sketch sketch;
        QVERIFY(sketch.Restore(content));
        SketchContent other = SomeContent();
        other.layers[1].name = L"doors";

        QVERIFY(sketch.Insert(other, L"粘贴").empty());

        QCOMPARE(sketch.GetDigest(), DigestOf(content).ToText());
    }

    void aNewDrawingHasUndoneNothing()
    {
        Sketch sketch;
        sketch.AddLine({0, 0, 0}, {1, 0, 0});
        sketch.Undo();
        QCOMPARE(sketch.GetLastUndone(), 1);

        sketch.Clear();

        QCOMPARE(sketch.GetLastUndone(), 0);
    }

    void whenIdsRunOutNothingIsAdded()
    {
        constexpr int Greatest = SketchContent::GreatestId;
        SketchContent content = SomeContent();
        content.lastId = Greatest - 1;
        content.lastLayerId = Greatest;
        Sketch sketch;
        QVERIFY(sketch.Restore(content));
        SketchContent other = SomeContent();
        other.layers[1].name = L"doors";

        QVERIFY(!sketch.CanAddLayer(L"doors"));
        QCOMPARE(sketch.AddLayer(L"doors"), 0);
        QVERIFY(sketch.Insert(other, L"粘贴").empty());
        const Sketch::PenShape line(content.entities[0].shape, Pen());
        QVERIFY(sketch.Add({line, line}, L"粘贴").empty());

        QCOMPARE(sketch.GetDigest(), DigestOf(content).ToText());
        QCOMPARE(sketch.AddLine({0, 0, 0}, {1, 0, 0}), Greatest);
        QCOMPARE(sketch.AddLine({0, 0, 0}, {1, 0, 0}), 0);
        QVERIFY(DocumentFile::FromText(DocumentFile::ToText(sketch.GetContent())).outcome ==
                DocumentReading::Outcome::Whole);
    }

    void whoeverIsToldOfInsertedContentFindsTheDrawingValid()
    {
        Sketch sketch;
        bool isValid = false;
        connect(&sketch, &Sketch::changed, this, [&] { isValid = IsValid(sketch.GetContent()); });

        QVERIFY(!sketch.Insert(SomeContent(), L"粘贴").empty());

        QVERIFY(isValid);
    }

    void restoredContentIsTheDrawing()
    {
        Sketch sketch;
        sketch.AddLine({0, 0, 0}, {5, 0, 0});
        sketch.Undo();
        const QSignalSpy changes(&sketch, &Sketch::changed);
        const SketchContent content = SomeContent();

        QVERIFY(sketch.Restore(content));

        QCOMPARE(changes.count(), 1);
        QCOMPARE(sketch.GetDigest(), DigestOf(content).ToText());
        QVERIFY(!sketch.CanUndo() && !sketch.CanRedo());
        QCOMPARE(sketch.GetCurrentPen().layer, 1);
        QCOMPARE(sketch.AddLine({0, 0, 0}, {1, 0, 0}), 3);
        QCOMPARE(sketch.AddLayer(L"doors"), 2);
    }
};

VESK_TESTS_WITHOUT_WINDOWS(SketchContentTest);
#include "SketchContentTest.moc"
