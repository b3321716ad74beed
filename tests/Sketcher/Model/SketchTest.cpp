#include "Model/Sketch.h"

#include "Model/SketchEntities.h"
#include "ShapeValues.h"
#include "Support/TestValues.h"

#include <QSignalSpy>

#include <limits>
#include <string>
#include <utility>
#include <vector>

using vesk::Vector3d;

class SketchTest final : public QObject
{
    Q_OBJECT

private slots:
    void newSketchIsEmpty()
    {
        const Sketch sketch;

        QVERIFY(sketch.GetEntities().empty());
        QVERIFY(!sketch.CanUndo());
        QCOMPARE(sketch.GetLastUndone(), 0);
        QCOMPARE(sketch.GetName(), std::wstring(L"未命名"));
    }

    void anEntityThatWasNotDrawnHasNoId() { QCOMPARE(Entity().id, 0); }

    void linesKeepTheirOrderAndGetNewIds()
    {
        Sketch sketch;

        const int first = sketch.AddLine({0, 0, 0}, {1, 0, 0});
        const int second = sketch.AddLine({1, 0, 0}, {1, 1, 0});

        QVERIFY(first != 0 && second != 0 && first != second);
        QCOMPARE(IdsOf(sketch), (Ids{first, second}));
        QCOMPARE(LineOf(sketch, second).end.y(), 1.0);
    }

    void everyEntityIsFoundWhateverCameAndWent()
    {
        Sketch sketch;
        Ids ids;
        for (int i = 1; i <= 5; ++i)
            ids.push_back(sketch.AddLine({0, 0, 0}, {1.0 * i, 0, 0}));
        sketch.Erase(ids[2]);
        sketch.Erase(ids[0]);
        sketch.Undo();

        QVERIFY(sketch.Find(ids[2]) == nullptr);
        QVERIFY(sketch.Find(0) == nullptr);
        QVERIFY(sketch.Find(ids[4] + 1) == nullptr);
        QCOMPARE(LineOf(sketch, ids[0]).end.x(), 1.0);
        QCOMPARE(LineOf(sketch, ids[3]).end.x(), 4.0);
    }

    void linesAreDrawnWithTheCurrentPen()
    {
        Sketch sketch;
        const int before = sketch.AddLine({0, 0, 0}, {1, 0, 0});

        sketch.SetCurrentPen(&Pen::style, 2);
        sketch.SetCurrentPen(&Pen::colour, 3);

        const int after = sketch.AddLine({0, 0, 0}, {1, 0, 0});
        QCOMPARE(sketch.Find(before)->pen.style, 0);
        QCOMPARE(sketch.Find(after)->pen.style, 2);
        QCOMPARE(sketch.Find(after)->pen.colour, 3);
    }

    void anotherPenForSeveralIsOneStep()
    {
        Sketch sketch;
        sketch.SetCurrentPen(&Pen::style, 1);
        const int first = sketch.AddLine({0, 0, 0}, {1, 0, 0});
        sketch.SetCurrentPen(&Pen::style, 2);
        const int second = sketch.AddLine({0, 0, 0}, {1, 0, 0});

        QVERIFY(sketch.SetPen({second, first}, &Pen::style, 3));
        QCOMPARE(sketch.Find(first)->pen.style, 3);
        QCOMPARE(sketch.Find(second)->pen.style, 3);

        QCOMPARE(sketch.Undo(), second);
        QCOMPARE(sketch.Find(first)->pen.style, 1);
        QCOMPARE(sketch.Find(second)->pen.style, 2);
    }

    void thePenThatTheyHaveIsNoStep()
    {
        Sketch sketch;
        const int id = sketch.AddLine({0, 0, 0}, {1, 0, 0});
        QSignalSpy changes(&sketch, &Sketch::changed);

        QVERIFY(!sketch.SetPen({id}, &Pen::style, 0));
        QVERIFY(!sketch.SetPen({}, &Pen::style, 1));
        QVERIFY(!sketch.SetPen({id, 99}, &Pen::style, 1));

        QCOMPARE(sketch.Find(id)->pen.style, 0);
        QCOMPARE(changes.count(), 0);
    }

    void aClearedSketchIsNew()
    {
        Sketch sketch;
        const int first = sketch.AddLine({0, 0, 0}, {1, 0, 0});
        const std::wstring name = Sketch().GetName();
        sketch.SetName(L"plan");
        sketch.SetCurrentPen(&Pen::colour, 2);
        sketch.Undo();
        sketch.AddLine({0, 0, 0}, {1, 0, 0});

        sketch.Clear();

        QVERIFY(sketch.GetEntities().empty());
        QVERIFY(!sketch.CanUndo());
        QCOMPARE(sketch.GetName(), name);
        QCOMPARE(sketch.GetCurrentPen().colour, 0);
        QCOMPARE(sketch.GetLastUndone(), 0);
        QCOMPARE(sketch.AddLine({0, 0, 0}, {1, 0, 0}), first);
    }

    void aClearedSketchSaysSoThoughNothingWasDrawn()
    {
        Sketch sketch;
        sketch.SetName(L"plan");
        const QSignalSpy changes(&sketch, &Sketch::changed);

        sketch.Clear();

        QVERIFY(!changes.isEmpty());
    }

    void whoHearsOfAClearedSketchSeesANewOne()
    {
        Sketch sketch;
        sketch.SetName(L"plan");
        sketch.SetCurrentPen(&Pen::colour, 2);
        sketch.AddLine({0, 0, 0}, {1, 0, 0});
        int calls = 0;
        connect(&sketch, &Sketch::changed, this, [&] {
            ++calls;
            QVERIFY(sketch.GetEntities().empty());
            QVERIFY(!sketch.CanUndo());
            QCOMPARE(sketch.GetName(), Sketch().GetName());
            QCOMPARE(sketch.GetCurrentPen().colour, 0);
        });

        sketch.Clear();

        QVERIFY(calls > 0);
    }

    void anyShapeIsDrawnWithTheCurrentPen()
    {
        Sketch sketch;
        sketch.SetCurrentPen(&Pen::colour, 3);
        const Shape circle = CircleShape{{1, 2, 0}, 0.1, {0, 0, 1}};

        const int id = sketch.Add(circle);

        QCOMPARE(sketch.Find(id)->shape, circle);
        QCOMPARE(sketch.Find(id)->pen.colour, 3);
        QCOMPARE(sketch.Undo(), id);
        QVERIFY(sketch.GetEntities().empty());
    }

    void otherShapesForSeveralAreOneStep()
    {
        Sketch sketch;
        const int first = sketch.AddLine({0, 0, 0}, {1, 0, 0});
        const int second = sketch.AddLine({0, 0, 0}, {2, 0, 0});
        sketch.SetPen({first}, &Pen::style, 2);
        const Shape line = LineShape{{0, 0, 0}, {0, 5, 0}};
        const Shape circle = CircleShape{{1, 2, 0}, 3.0, {0, 0, 1}};

        QVERIFY(sketch.Replace({{second, line}, {first, circle}}));
        QCOMPARE(sketch.Find(first)->shape, circle);
        QCOMPARE(sketch.Find(second)->shape, line);
        QCOMPARE(sketch.Find(first)->pen.style, 2);
        QCOMPARE(sketch.GetEntities()[0].id, first);

        QCOMPARE(sketch.Undo(), second);
        QCOMPARE(LineOf(sketch, first).end.x(), 1.0);
        QCOMPARE(LineOf(sketch, second).end.x(), 2.0);
        QCOMPARE(sketch.Find(first)->pen.style, 2);
    }

    void anEntityThatIsReplacedTwiceComesBackAsItWas()
    {
        Sketch sketch;
        const int id = sketch.AddLine({0, 0, 0}, {1, 0, 0});

        QVERIFY(sketch.Replace(
            {{id, LineShape{{0, 0, 0}, {2, 0, 0}}}, {id, LineShape{{0, 0, 0}, {3, 0, 0}}}}));
        QCOMPARE(LineOf(sketch, id).end.x(), 3.0);

        QCOMPARE(sketch.Undo(), id);
        QCOMPARE(LineOf(sketch, id).end.x(), 1.0);
    }

    void whatCannotBeReplacedIsNoStep_data()
    {
        QTest::addColumn<int>("otherId");
        QTest::addColumn<double>("otherLength");
        QTest::addColumn<double>("length");

        QTest::newRow("unknown entity") << 99 << 5.0 << 5.0;
        QTest::newRow("impossible shape") << 2 << 0.0 << 5.0;
        QTest::newRow("nothing differs") << 2 << 2.0 << 1.0;
    }

    void whatCannotBeReplacedIsNoStep()
    {
        QFETCH(int, otherId);
        QFETCH(double, otherLength);
        QFETCH(double, length);
        Sketch sketch;
        sketch.AddLine({0, 0, 0}, {1, 0, 0});
        sketch.AddLine({0, 0, 0}, {2, 0, 0});
        QSignalSpy changes(&sketch, &Sketch::changed);

        QVERIFY(!sketch.Replace({{1, LineShape{{0, 0, 0}, {length, 0, 0}}},
                                 {otherId, LineShape{{0, 0, 0}, {otherLength, 0, 0}}}}));
        QVERIFY(!sketch.Replace({}));

        QCOMPARE(changes.count(), 0);
        QCOMPARE(LineOf(sketch, 1).end.x(), 1.0);
        QCOMPARE(LineOf(sketch, 2).end.x(), 2.0);
    }

    void impossibleLinesAreNotDrawn_data()
    {
        QTest::addColumn<double>("length");

        QTest::newRow("none") << 0.0;
        QTest::newRow("too short") << 0.9e-6;
        QTest::newRow("too long") << 1.1e9;
        QTest::newRow("nan") << std::numeric_limits<double>::quiet_NaN();
        QTest::newRow("infinite") << std::numeric_limits<double>::infinity();
    }

    void impossibleLinesAreNotDrawn()
    {
        QFETCH(double, length);
        Sketch sketch;

        QCOMPARE(sketch.AddLine({0, 0, 0}, {length, 0, 0}), 0);

        QVERIFY(sketch.GetEntities().empty());
        QVERIFY(!sketch.CanUndo());
    }

    void undoTakesBackOneStepAtATime()
    {
        Sketch sketch;
        const int first = sketch.AddLine({0, 0, 0}, {1, 0, 0});
        const int second = sketch.AddLine({1, 0, 0}, {1, 1, 0});

        QCOMPARE(sketch.Undo(), second);
        QCOMPARE(sketch.GetLastUndone(), second);
        QVERIFY(sketch.CanUndo());
        QCOMPARE(sketch.Undo(), first);
        QVERIFY(!sketch.CanUndo());
        QCOMPARE(sketch.Undo(), 0);

        QVERIFY(sketch.GetEntities().empty());
    }

    void undoneEraseBringsTheLineBackToItsPlace_data()
    {
        QTest::addColumn<int>("erased");
        QTest::addColumn<Ids>("left");

        QTest::newRow("first") << 1 << Ids{2, 3};
        QTest::newRow("between others") << 2 << Ids{1, 3};
        QTest::newRow("last") << 3 << Ids{1, 2};
    }

    void undoneEraseBringsTheLineBackToItsPlace()
    {
        QFETCH(int, erased);
        QFETCH(Ids, left);
        Sketch sketch;
        for (int length = 1; length <= 3; ++length)
            sketch.AddLine({0, 0, 0}, {1.0 * length, 0, 0});

        QVERIFY(sketch.Erase(erased));
        QCOMPARE(IdsOf(sketch), left);
        QCOMPARE(sketch.Undo(), erased);

        QCOMPARE(IdsOf(sketch), (Ids{1, 2, 3}));
        QCOMPARE(LineOf(sketch, erased).end.x(), 1.0 * erased);
    }

    void idsAreNeverGivenTwice()
    {
        Sketch sketch;
        const int undone = sketch.AddLine({0, 0, 0}, {1, 0, 0});
        sketch.Undo();

        QVERIFY(sketch.AddLine({0, 0, 0}, {2, 0, 0}) > undone);
    }

    void unknownEntityCannotBeErased()
    {
        Sketch sketch;

        QVERIFY(!sketch.Erase(7));

        QVERIFY(!sketch.CanUndo());
    }

    void everyChangeIsTold()
    {
        Sketch sketch;
        const QSignalSpy changes(&sketch, &Sketch::changed);

        const int id = sketch.AddLine({0, 0, 0}, {1, 0, 0});
        sketch.Erase(id);
        sketch.Undo();
        sketch.SetName(L"平面图");
        sketch.SetName(L"平面图");

        QCOMPARE(changes.count(), 4);
    }

    void anotherCurrentPenIsToldOnce()
    {
        Sketch sketch;
        const QSignalSpy changes(&sketch, &Sketch::changed);

        sketch.SetCurrentPen(&Pen::style, 0);
        QCOMPARE(changes.count(), 0);
        sketch.SetCurrentPen(&Pen::style, 2);
        sketch.SetCurrentPen(&Pen::style, 2);

        QCOMPARE(changes.count(), 1);
        QVERIFY(!sketch.CanUndo());
    }

    void whoHearsOfAnUndoKnowsWhatCameBack()
    {
        Sketch sketch;
        const int id = sketch.AddLine({0, 0, 0}, {1, 0, 0});
        int undone = 0;
        connect(&sketch, &Sketch::changed, this, [&] { undone = sketch.GetLastUndone(); });

        sketch.Undo();

        QCOMPARE(undone, id);
    }
};

VESK_TESTS_WITHOUT_WINDOWS(SketchTest);
#include "SketchTest.moc"
