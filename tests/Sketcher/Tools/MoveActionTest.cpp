#include "Tools/MoveAction.h"

#include "Model/Polar.h"
#include "Tools/ActionFixture.h"
#include "Tools/ShownGraphics.h"

#include "Dimension/LinearTemporaryDimensionContext.h"
#include "ShapeValues.h"

using namespace vesk;

namespace
{

using Moving = ActionFixture<MoveAction>;
using Copying = ActionFixture<CopyAction>;

/// Draws a line and a circle of another style, which are selected, and a second line, which is not.
void SelectTwo(Workspace& workspace)
{
    workspace.sketch.AddLine({0, 0, 0}, {40, 0, 0});
    workspace.sketch.SetCurrentPen(&Pen::style, 1);
    workspace.sketch.Add(CircleShape{{100, 100, 0}, 1.0 / 3.0, {0, 0, 1}});
    workspace.sketch.SetCurrentPen(&Pen::style, 0);
    workspace.sketch.AddLine({0, -80, 0}, {40, -80, 0});
    workspace.selection.Select({2, 1});
}

/// Proceeds to the last step, from (10, 20).
template <class Fixture>
void BeginAtBase(Fixture& f)
{
    SelectTwo(f.workspace);
    f.workspace.snapper.SetOn(Snapper::End, false);
    f.records.clear();
    f.Begin();
    f.ClickAt(10, 20);
}

template <class Fixture>
Shape ShapeOf(const Fixture& f, int id)
{
    return f.workspace.sketch.Find(id)->shape;
}

}

class MoveActionTest final : public QObject
{
    Q_OBJECT

private slots:
    void whatIsSelectedMovesInOneStep()
    {
        Moving f;
        BeginAtBase(f);

        f.ClickAt(13, 18);

        QVERIFY(f.action.IsFinished());
        QCOMPARE(ShapeOf(f, 1), Shape(LineShape{{3, -2, 0}, {43, -2, 0}}));
        QCOMPARE(ShapeOf(f, 2), Shape(CircleShape{{103, 98, 0}, 1.0 / 3.0, {0, 0, 1}}));
        QCOMPARE(ShapeOf(f, 3), Shape(LineShape{{0, -80, 0}, {40, -80, 0}}));
        QVERIFY(f.IsRepeated(&SelectTwo));

        QCOMPARE(f.workspace.sketch.GetUndoText(), std::wstring(L"移动"));
        f.workspace.sketch.Undo();
        QCOMPARE(ShapeOf(f, 1), Shape(LineShape{{0, 0, 0}, {40, 0, 0}}));
        QCOMPARE(ShapeOf(f, 2), Shape(CircleShape{{100, 100, 0}, 1.0 / 3.0, {0, 0, 1}}));
    }

    void aTypedDistanceAndAngleMoveExactly()
    {
        Moving f;
        BeginAtBase(f);

        f.Type(ActionViewInput::LengthEntered, 0.1);
        f.Type(ActionViewInput::AngleCommitted, 90);

        // The end point, 20.1, would give 0.10000000000000142.
        QCOMPARE(ShapeOf(f, 1), Shape(LineShape{{0, 0.1, 0}, {40, 0.1, 0}}));
        QVERIFY(f.IsRepeated(&SelectTwo));
    }

    void aTypedDistanceMovesTowardsTheCursor()
    {
        Moving f;
        BeginAtBase(f);
        f.MoveTo(10, -50);

        f.Type(ActionViewInput::LengthCommitted, 5);

        QCOMPARE(ShapeOf(f, 1), Shape(LineShape{{0, -5, 0}, {40, -5, 0}}));
        QVERIFY(f.IsRepeated(&SelectTwo));
    }

    void aTypedDistanceMovesInAnyDirectionOfTheCursor()
    {
        Moving f;
        BeginAtBase(f);
        f.MoveTo(16, 28);

        f.Type(ActionViewInput::LengthCommitted, 5);

        QCOMPARE(ShapeOf(f, 1), Shape(LineShape{{3, 4, 0}, {43, 4, 0}}));
    }

    void aClickOnTheBaseMovesNothing()
    {
        Moving f;
        BeginAtBase(f);

        f.ClickAt(10, 20);

        QVERIFY(!f.action.IsFinished());
        QVERIFY(f.workspace.sketch.GetUndoText() != L"移动");
    }

    void copiesKeepTheirPensAndTheOriginalsStay()
    {
        Copying f;
        BeginAtBase(f);

        f.ClickAt(13, 18);

        QCOMPARE(f.Count(), std::size_t{5});
        QCOMPARE(ShapeOf(f, 1), Shape(LineShape{{0, 0, 0}, {40, 0, 0}}));
        QCOMPARE(ShapeOf(f, 4), Shape(CircleShape{{103, 98, 0}, 1.0 / 3.0, {0, 0, 1}}));
        QCOMPARE(ShapeOf(f, 5), Shape(LineShape{{3, -2, 0}, {43, -2, 0}}));
        QCOMPARE(f.workspace.sketch.Find(4)->pen.style, 1);
        QCOMPARE(f.workspace.sketch.Find(5)->pen.style, 0);
        QCOMPARE(f.workspace.selection.GetIds(), (std::vector<int>{2, 1}));
    }

    void everyTargetGetsACopyOfItsOwn()
    {
        Copying f;
        BeginAtBase(f);

        f.ClickAt(13, 18);
        f.Type(ActionViewInput::LengthEntered, 7);
        f.Type(ActionViewInput::AngleCommitted, 180);

        QVERIFY(!f.action.IsFinished());
        QCOMPARE(f.Count(), std::size_t{7});
        QCOMPARE(ShapeOf(f, 7), Shape(LineShape{{-7, 0, 0}, {33, 0, 0}}));
        QVERIFY(f.IsRepeated(&SelectTwo));
        QCOMPARE(f.workspace.sketch.GetUndoText(), std::wstring(L"复制到"));
        f.workspace.sketch.Undo();
        QCOMPARE(f.Count(), std::size_t{5});
    }

    void withNothingSelectedEntitiesArePickedFirst()
    {
        Moving f;
        SelectTwo(f.workspace);
        f.workspace.selection.Select({});
        f.workspace.snapper.SetOn(Snapper::End, false);
        f.records.clear();
        f.Begin();

        f.ClickAt(20, 3);
        f.ClickAt(20, -77);
        f.ClickAt(0, 200);
        f.ClickAt(0, 150);

        QCOMPARE(f.workspace.selection.GetIds(), (std::vector<int>{1, 3}));
        QCOMPARE(ShapeOf(f, 3), Shape(LineShape{{0, -130, 0}, {40, -130, 0}}));
        QVERIFY(f.IsRepeated([](Workspace& workspace) {
            SelectTwo(workspace);
            workspace.selection.Select({});
        }));
    }

    void distanceAndAngleAreOffered()
    {
        Moving f;
        BeginAtBase(f);

        f.MoveTo(13, 24);

        const auto opContext = f.Offered<LinearTemporaryDimensionContext>();
        QVERIFY(opContext != nullptr);
        QCOMPARE(opContext->GetStartPoint(), Vector3d(10, 20, 0));
        QCOMPARE(opContext->GetEndPoint(), Vector3d(13, 24, 0));
    }

    void directionsAreHeldToMultiplesOf15Degrees_data()
    {
        QTest::addColumn<double>("x");
        QTest::addColumn<double>("y");
        QTest::addColumn<double>("degrees");

        QTest::newRow("along x") << 110.0 << 24.0 << 0.0;
        QTest::newRow("against x, from below") << -90.0 << 19.0 << 180.0;
        QTest::newRow("against x, from above") << -90.0 << 21.0 << 180.0;
        QTest::newRow("45") << 60.0 << 69.0 << 45.0;
        QTest::newRow("-75") << 34.0 << -60.0 << -75.0;
    }

    void directionsAreHeldToMultiplesOf15Degrees()
    {
        QFETCH(double, x);
        QFETCH(double, y);
        QFETCH(double, degrees);
        Moving f;
        BeginAtBase(f);
        f.workspace.isDirectionHeld = true;
        f.MoveTo(x, y);

        const Vector3d end = f.Offered<LinearTemporaryDimensionContext>()->GetEndPoint();

        const Vector3d base(10, 20, 0);
        const double along = (Vector3d(x, y, 0) - base).dot(DirectionOf(degrees));
        QCOMPARE(end, Vector3d(base + along * DirectionOf(degrees)));
        f.ClickAt(x, y);
        QCOMPARE(std::get<PointRecord>(f.records.back().what).point, end);
    }

    void aTypedAngleIsNotHeld()
    {
        Moving f;
        BeginAtBase(f);
        f.workspace.isDirectionHeld = true;
        f.MoveTo(60, 30);

        f.Type(ActionViewInput::AngleEntered, 17.5);

        const Vector3d end = f.Offered<LinearTemporaryDimensionContext>()->GetEndPoint();
        const Vector3d base(10, 20, 0);
        const Vector3d direction = DirectionOf(17.5);
        QCOMPARE(end, Vector3d(base + Vector3d(50, 10, 0).dot(direction) * direction));
    }

    void aSnappedPointGoesToTheHeldDirection()
    {
        Moving f;
        BeginAtBase(f);
        f.workspace.snapper.SetOn(Snapper::End, true);
        f.workspace.isDirectionHeld = true;

        f.MoveTo(41, 1);

        QVERIFY(f.workspace.snapper.GetCaught().has_value());
        const Vector3d direction = DirectionOf(-30);
        const Vector3d end = f.Offered<LinearTemporaryDimensionContext>()->GetEndPoint();
        QCOMPARE(end,
                 Vector3d(Vector3d(10, 20, 0) + Vector3d(30, -20, 0).dot(direction) * direction));
    }

    void everyStepHasItsHint()
    {
        Copying f;
        SelectTwo(f.workspace);
        f.workspace.selection.Select({});
        f.Begin();

        QStringList hints;
        for (const double x : {20.0, 200.0, 250.0})
        {
            hints << QString::fromStdWString(f.action.GetViewText());
            f.ClickAt(x, 0);
        }

        QCOMPARE(hints,
                 (QStringList{"复制到：单击要复制的图元；Esc 结束",
                              "复制到：单击基点，或再单击一并复制的图元；Esc 结束",
                              "复制到：单击目标点，或键入距离（Tab 切换到角度）；Esc 结束"}));
    }

    void theWayAndWhatMovesAreShown()
    {
        Moving f;
        BeginAtBase(f);

        f.MoveTo(13, 18);

        const ShownGraphics shown(*f.action.CreateRubberBand());
        QCOMPARE(shown.lines.size(), std::size_t{2});
        QCOMPARE(shown.lines[0].start, Vector3d(10, 20, 0));
        QCOMPARE(shown.lines[0].end, Vector3d(13, 18, 0));
        QCOMPARE(shown.lines[1].start, Vector3d(3, -2, 0));
        QCOMPARE(shown.arcs.size(), std::size_t{1});
        QCOMPARE(shown.arcs[0].centre, Vector3d(103, 98, 0));
    }

    void ofManyEntitiesSomeAreShown()
    {
        Moving f;
        std::vector<int> ids;
        for (int i = 1; i <= 600; ++i)
        {
            f.workspace.sketch.AddLine({0, double(i), 0}, {1, double(i), 0});
            ids.push_back(i);
        }
        f.workspace.selection.Select(ids);
        f.Begin();
        f.ClickAt(-50, -50);

        f.MoveTo(-60, -60);

        QCOMPARE(ShownGraphics(*f.action.CreateRubberBand()).lines.size(), std::size_t{501});
    }

    void beforeTheBaseNothingIsOfferedOrTyped()
    {
        Moving f;
        SelectTwo(f.workspace);
        f.workspace.snapper.SetOn(Snapper::End, false);
        f.records.clear();
        f.Begin();
        f.MoveTo(10, 20);

        QVERIFY(f.action.CreateDimensionContext() == nullptr);
        f.Type(ActionViewInput::LengthEntered, 7);
        QVERIFY(f.action.GetRefusal(InputState::IS_Length, 7).empty());
        QVERIFY(!f.action.ReplayValue(InputState::IS_Length, L"7", 7));
        QVERIFY(f.records.empty());
    }

    void whatIsNoLongerSelectedIsAskedForAgain()
    {
        Moving f;
        BeginAtBase(f);
        f.workspace.selection.Select({});

        f.ClickAt(300, 300);

        QVERIFY(f.action.CreateDimensionContext() == nullptr);
        QVERIFY(!f.action.ReplayPoint({300, 300, 0}, std::nullopt));
        QVERIFY(!f.action.IsFinished());
        QCOMPARE(f.records.size(), std::size_t{2});
    }

    void aClickPicksOrSetsAPointOrDoesNothing()
    {
        using Click = IPickingTool::Click;
        Moving f;
        SelectTwo(f.workspace);
        f.workspace.selection.Select({});
        f.Begin();

        f.MoveTo(300, 300);
        QCOMPARE(f.action.GetClick(), Click::DoesNothing);
        f.MoveTo(20, 3);
        QCOMPARE(f.action.GetClick(), Click::PicksEntity);
        QVERIFY(!f.workspace.snapper.GetCaught().has_value());
        f.ClickAt(20, 3);
        f.MoveTo(300, 300);
        QCOMPARE(f.action.GetClick(), Click::SetsPoint);
    }

    void withNothingSelectedAClickBesideEverythingDoesNothing()
    {
        Moving f;
        SelectTwo(f.workspace);
        f.workspace.selection.Select({});
        f.records.clear();
        f.Begin();

        f.ClickAt(300, 300);

        QVERIFY(!f.action.ReplayPoint({300, 300, 0}, std::nullopt));
        QVERIFY(f.records.empty());
    }

    void whatIsSelectedIsNotPickedAgain()
    {
        Moving f;
        SelectTwo(f.workspace);
        f.workspace.selection.Select({});
        f.Begin();
        f.ClickAt(20, 3);

        QVERIFY(!f.action.ReplayPoint({20, 3, 0}, 1));

        QCOMPARE(f.workspace.selection.GetIds(), (std::vector<int>{1}));
    }

    void aTargetOutOfReachIsRefused()
    {
        Moving f;
        BeginAtBase(f);

        f.ClickAt(1e300, 0);

        QVERIFY(!f.action.IsFinished());
        QVERIFY(!f.action.ReplayPoint({1e300, 0, 0}, std::nullopt));
        QCOMPARE(ShapeOf(f, 1), Shape(LineShape{{0, 0, 0}, {40, 0, 0}}));
    }

    void aLockedEntityIsNotPicked()
    {
        Moving f;
        SelectTwo(f.workspace);
        f.workspace.selection.Select({});
        Layer locked = f.workspace.sketch.GetLayers().front();
        locked.isLocked = true;
        f.workspace.sketch.SetLayer(locked);
        f.records.clear();
        f.Begin();

        f.ClickAt(20, 3);

        QVERIFY(f.workspace.selection.IsEmpty());
        QVERIFY(!f.action.ReplayPoint({20, 3, 0}, 1));
        QVERIFY(f.records.empty());
    }
};

VESK_TESTS(MoveActionTest);
#include "MoveActionTest.moc"
