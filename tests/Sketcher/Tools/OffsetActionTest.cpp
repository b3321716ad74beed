#include "Tools/OffsetAction.h"

#include "Tools/ActionFixture.h"
#include "Tools/ShownGraphics.h"

#include "Dimension/LinearTemporaryDimensionContext.h"
#include "ShapeValues.h"

using namespace vesk;
using Fixture = ActionFixture<OffsetAction>;

Q_DECLARE_METATYPE(Shape)

namespace
{

void DrawTwo(Workspace& workspace)
{
    workspace.sketch.SetCurrentPen(&Pen::colour, 2);
    workspace.sketch.AddLine({0, 0, 0}, {40, 0, 0});
    workspace.sketch.SetCurrentPen(&Pen::colour, 0);
    workspace.sketch.Add(CircleShape{{200, 0, 0}, 30, {0, 0, 1}});
}

void BeginWith(Fixture& f, double x, double y)
{
    DrawTwo(f.workspace);
    f.workspace.snapper.SetOn(Snapper::End, false);
    f.records.clear();
    f.Begin();
    f.ClickAt(x, y);
}

}

class OffsetActionTest final : public QObject
{
    Q_OBJECT

private slots:
    void aClickGivesTheSideAndTheDistance()
    {
        Fixture f;
        BeginWith(f, 20, 2);

        f.ClickAt(5, -12);

        QCOMPARE(f.Drawn<LineShape>(), (LineShape{{0, -12, 0}, {40, -12, 0}}));
        QCOMPARE(f.workspace.sketch.GetEntities().back().pen.colour, 2);
        QCOMPARE(f.workspace.sketch.GetUndoText(), std::wstring(L"偏移"));
        QVERIFY(f.IsRepeated(&DrawTwo));
    }

    void aTypedDistanceIsOnTheCursorsSide_data()
    {
        QTest::addColumn<double>("x");
        QTest::addColumn<double>("radius");

        QTest::newRow("outside") << 235.0 << 40.0;
        QTest::newRow("inside") << 225.0 << 20.0;
        QTest::newRow("left outside") << 150.0 << 40.0;
    }

    void aTypedDistanceIsOnTheCursorsSide()
    {
        QFETCH(double, x);
        QFETCH(double, radius);
        Fixture f;
        BeginWith(f, 231, 0);
        f.MoveTo(x, 0);

        f.Type(ActionViewInput::LengthCommitted, 10);

        QCOMPARE(f.Drawn<CircleShape>(), (CircleShape{{200, 0, 0}, radius, {0, 0, 1}}));
        QVERIFY(f.IsRepeated(&DrawTwo));
    }

    void itGoesOnWithOtherEntities()
    {
        Fixture f;
        BeginWith(f, 20, 2);
        f.ClickAt(5, -12);

        f.ClickAt(231, 0);
        f.ClickAt(240, 0);

        QVERIFY(!f.action.IsFinished());
        QCOMPARE(f.Count(), std::size_t{4});
        QCOMPARE(f.Drawn<CircleShape>(), (CircleShape{{200, 0, 0}, 40, {0, 0, 1}}));
        QVERIFY(f.IsRepeated(&DrawTwo));
    }

    void aDistanceThatLeavesNothingIsRefused_data()
    {
        QTest::addColumn<double>("distance");
        QTest::addColumn<bool>("isRefused");

        QTest::newRow("less than the radius") << 29.0 << false;
        QTest::newRow("the radius") << 30.0 << true;
        QTest::newRow("more") << 45.0 << true;
        QTest::newRow("more than the diameter") << 61.0 << true;
        QTest::newRow("far more") << 1e6 << true;
    }

    void aDistanceThatLeavesNothingIsRefused()
    {
        QFETCH(double, distance);
        QFETCH(bool, isRefused);
        Fixture f;
        BeginWith(f, 231, 0);
        f.MoveTo(220, 3);

        const std::wstring refusal = f.action.GetRefusal(InputState::IS_Length, distance);

        QCOMPARE(!refusal.empty(), isRefused);
        f.Type(ActionViewInput::LengthCommitted, distance);
        QCOMPARE(f.Count(), std::size_t(isRefused ? 2 : 3));
    }

    void onlyTheAngleThatIsShownIsAccepted()
    {
        Fixture f;
        BeginWith(f, 20, 2);
        f.MoveTo(5, -12);

        QVERIFY(f.action.GetRefusal(InputState::IS_Angle, -90).empty());
        QVERIFY(!f.action.GetRefusal(InputState::IS_Angle, 90).empty());
        QVERIFY(!f.action.GetRefusal(InputState::IS_Angle, -89).empty());
    }

    void confirmingTheAngleConfirmsTheDistance()
    {
        Fixture f;
        BeginWith(f, 20, 2);
        f.MoveTo(5, -12);

        f.Type(ActionViewInput::LengthEntered, 7);
        f.Type(ActionViewInput::AngleCommitted, -90, true);

        QCOMPARE(f.Drawn<LineShape>(), (LineShape{{0, -7, 0}, {40, -7, 0}}));
        QVERIFY(f.IsRepeated(&DrawTwo));
    }

    void aClickOnTheEntityItselfIsNoDistance()
    {
        Fixture f;
        BeginWith(f, 20, 2);

        f.ClickAt(30, 0);

        QVERIFY(!f.action.ReplayPoint({30, 0, 0}, std::nullopt));
        QCOMPARE(f.Count(), std::size_t{2});
    }

    void aClickBesideEverythingTakesNothing()
    {
        Fixture f;
        BeginWith(f, 20, 60);

        QVERIFY(f.records.empty());
        QVERIFY(f.Offered<LinearTemporaryDimensionContext>() == nullptr);
    }

    void theDistanceIsOfferedFromTheOutline()
    {
        Fixture f;
        BeginWith(f, 231, 0);

        f.MoveTo(200, 50);

        const auto opContext = f.Offered<LinearTemporaryDimensionContext>();
        QVERIFY(opContext != nullptr);
        QCOMPARE(opContext->GetStartPoint(), Vector3d(200, 30, 0));
        QCOMPARE(opContext->GetEndPoint(), Vector3d(200, 50, 0));
    }

    void theEntityThenItsParallelAreShown()
    {
        Fixture f;
        DrawTwo(f.workspace);
        f.workspace.snapper.SetOn(Snapper::End, true);
        f.Begin();
        f.MoveTo(2, 1);
        const ShownGraphics hovered(*f.action.CreateRubberBand());
        const bool isCaught = f.workspace.snapper.GetCaught().has_value();
        f.ClickAt(20, 2);

        f.MoveTo(5, -12);

        const ShownGraphics shown(*f.action.CreateRubberBand());
        QVERIFY(!isCaught);
        QCOMPARE(hovered.lines.size(), std::size_t{1});
        QCOMPARE(shown.lines.size(), std::size_t{2});
        QCOMPARE(shown.lines[0].start, Vector3d(5, 0, 0));
        QCOMPARE(shown.lines[0].end, Vector3d(5, -12, 0));
        QCOMPARE(shown.lines[1].start, Vector3d(0, -12, 0));
    }

    void overTheOtherEntityAPointIsSet()
    {
        using Click = IPickingTool::Click;
        Fixture f;
        DrawTwo(f.workspace);
        f.Begin();
        f.MoveTo(20, 60);
        QCOMPARE(f.action.GetClick(), Click::DoesNothing);
        f.MoveTo(20, 2);
        QCOMPARE(f.action.GetClick(), Click::PicksEntity);
        f.ClickAt(20, 2);

        f.MoveTo(231, 0);

        QCOMPARE(f.action.GetClick(), Click::SetsPoint);
        QVERIFY(!f.action.ReplayPoint({231, 0, 0}, 2));
        // Neither of them is below the cursor: line from the source, and the parallel.
        QCOMPARE(ShownGraphics(*f.action.CreateRubberBand()).arcs.size(), std::size_t{0});
    }

    void onlyTheDistanceIsAValue()
    {
        Fixture f;
        BeginWith(f, 20, 2);

        QVERIFY(f.action.ReplayValue(InputState::IS_Length, L"7", 7));
        QVERIFY(!f.action.ReplayValue(InputState::IS_Angle, L"7", 7));
    }

    void aLockedEntityHasNoParallel()
    {
        Fixture f;
        DrawTwo(f.workspace);
        Layer locked = f.workspace.sketch.GetLayers().front();
        locked.isLocked = true;
        f.workspace.sketch.SetLayer(locked);
        f.Begin();

        QVERIFY(!f.action.ReplayPoint({20, 2, 0}, 1));
    }

    void anEntityThatIsUndoneIsAskedForAgain()
    {
        Fixture f;
        BeginWith(f, 231, 0);

        f.workspace.sketch.Undo();
        f.ClickAt(240, 0);

        QCOMPARE(f.Count(), std::size_t{1});
        QVERIFY(!f.action.ReplayPoint({240, 0, 0}, std::nullopt));
        QVERIFY(!f.action.ReplayPoint({240, 0, 0}, 2));
    }

    void crookedParallelsAreRepeatedToTheLastBit_data()
    {
        QTest::addColumn<Shape>("shape");

        QTest::newRow("line") << Shape(LineShape{{0.1, 0, 0}, {40, 13.0 / 7.0, 0}});
        QTest::newRow("circle") << Shape(CircleShape{{0, 0.3, 0}, 1e2 / 7.0, {0, 0, 1}});
        QTest::newRow("rectangle") << Shape(
            RectangleShape{{Vector3d(0, 0, 0), {30.1, 0, 0}, {30.1, 9.7, 0}, {0, 9.7, 0}}});
    }

    void crookedParallelsAreRepeatedToTheLastBit()
    {
        QFETCH(Shape, shape);
        const auto prepare = [&shape](Workspace& workspace) { workspace.sketch.Add(shape); };
        Fixture f;
        prepare(f.workspace);
        f.Begin();
        f.action.ReplayPoint({0, 0, 0}, 1);

        f.ClickAt(50.0 / 3.0, -23.456);

        QCOMPARE(f.Count(), std::size_t{2});
        QVERIFY(f.IsRepeated(prepare));
    }
};

VESK_TESTS(OffsetActionTest);
#include "OffsetActionTest.moc"
