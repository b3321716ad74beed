#include "Model/Selection.h"

#include "Model/Sketch.h"
#include "RecordedLines.h"
#include "Support/TestValues.h"

#include <QSignalSpy>

using Ids = std::vector<int>;

namespace
{

/// A drawing of three lines.
struct Fixture
{
    Fixture()
    {
        for (int i = 0; i < 3; ++i)
            ids.push_back(sketch.AddLine({0, 1.0 * i, 0}, {10, 1.0 * i, 0}));
    }

    Sketch sketch;
    Selection selection{sketch};
    Ids ids;
    RecordedLines lines;
    QSignalSpy changes{&selection, &Selection::changed};
};

}

class SelectionTest final : public QObject
{
    Q_OBJECT

private slots:
    void whatLayersForbidIsNotSelected_data()
    {
        QTest::addColumn<bool>("isVisible");
        QTest::addColumn<bool>("isLocked");

        QTest::newRow("hidden") << false << false;
        QTest::newRow("locked") << true << true;
    }

    void whatLayersForbidIsNotSelected()
    {
        QFETCH(bool, isVisible);
        QFETCH(bool, isLocked);
        Sketch sketch;
        const int free = sketch.AddLine({0, 0, 0}, {1, 0, 0});
        const int layer = sketch.AddLayer(L"walls");
        sketch.SetCurrentPen(&Pen::layer, layer);
        const int wall = sketch.AddLine({0, 0, 0}, {2, 0, 0});
        Selection selection(sketch);
        selection.Select({wall, free});

        Layer changed = *sketch.FindLayer(layer);
        changed.isVisible = isVisible;
        changed.isLocked = isLocked;
        sketch.SetLayer(changed);

        QCOMPARE(selection.GetIds(), std::vector<int>{free});
        QVERIFY(!selection.Select({free, wall}));
        QCOMPARE(selection.GetIds(), std::vector<int>{free});
    }

    void nothingIsSelectedAtFirst()
    {
        const Fixture f;

        QVERIFY(f.selection.IsEmpty());
        QVERIFY(!f.selection.Contains(f.ids[0]));
    }

    void theseAndNoOthersAreSelected()
    {
        Fixture f;
        f.selection.Select({f.ids[0]});

        QVERIFY(f.selection.Select({f.ids[2], f.ids[1]}));

        QCOMPARE(f.selection.GetIds(), (Ids{f.ids[2], f.ids[1]}));
        QVERIFY(!f.selection.Contains(f.ids[0]));
        QCOMPARE(f.changes.count(), 2);
    }

    void eachSelectionIsRecorded()
    {
        Fixture f;

        f.selection.Select({f.ids[1], f.ids[0]});
        f.selection.Select({});

        QCOMPARE(f.lines.Get(), QStringList({R"({"kind":"selection","entities":[2,1]})",
                                             R"({"kind":"selection","entities":[]})"}));
    }

    void theSameSelectionAgainIsNothing()
    {
        Fixture f;
        f.selection.Select({f.ids[1]});

        QVERIFY(f.selection.Select({f.ids[1]}));

        QCOMPARE(f.changes.count(), 1);
        QCOMPARE(f.lines.Get().size(), 1);
    }

    void whatIsNotInTheDrawingCannotBeSelected()
    {
        Fixture f;
        f.selection.Select({f.ids[1]});

        QVERIFY(!f.selection.Select({f.ids[0], 99}));

        QCOMPARE(f.selection.GetIds(), Ids{f.ids[1]});
        QCOMPARE(f.lines.Get().size(), 1);
    }

    void anEntityThatGoesIsNoLongerSelected()
    {
        Fixture f;
        f.selection.Select({f.ids[0], f.ids[1], f.ids[2]});

        f.sketch.Erase(f.ids[1]);

        QCOMPARE(f.selection.GetIds(), (Ids{f.ids[0], f.ids[2]}));
        QCOMPARE(f.changes.count(), 2);
        QCOMPARE(f.lines.Get().size(), 1);
    }

    void eachOfManyIsFoundInAnyOrder()
    {
        Fixture f;

        f.selection.Select({f.ids[2], f.ids[0]});

        QVERIFY(f.selection.Contains(f.ids[0]));
        QVERIFY(!f.selection.Contains(f.ids[1]));
        QVERIFY(f.selection.Contains(f.ids[2]));
    }

    void aChangeOfOthersLeavesTheSelectionAlone()
    {
        Fixture f;
        f.selection.Select({f.ids[0]});

        f.sketch.Erase(f.ids[1]);

        QCOMPARE(f.changes.count(), 1);
    }
};

VESK_TESTS_WITHOUT_WINDOWS(SelectionTest);
#include "SelectionTest.moc"
