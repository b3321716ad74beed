#include "Tools/RotateAction.h"

#include "Model/ShapeRotation.h"
#include "Tools/ActionFixture.h"

#include "Dimension/LengthUnit.h"
#include "Dimension/RotationTemporaryDimensionContext.h"
#include "ShapeValues.h"

using namespace vesk;
using Fixture = ActionFixture<RotateAction>;

namespace
{

/// Draws a line and a circle, and a second line that is not rotated.
void DrawThree(Workspace& workspace)
{
    workspace.sketch.AddLine({0, 0, 0}, {40, 0, 0});
    workspace.sketch.Add(CircleShape{{100, 100, 0}, 1.0 / 3.0, {0, 0, 1}});
    workspace.sketch.AddLine({0, -80, 0}, {40, -80, 0});
}

void SelectTwo(Workspace& workspace)
{
    DrawThree(workspace);
    workspace.selection.Select({2, 1});
}

/// Proceeds to the last step of rotating two entities about (10, 20) from the x direction.
void BeginTurn(Fixture& f)
{
    SelectTwo(f.workspace);
    f.records.clear();
    f.Begin();
    f.ClickAt(10, 20);
    f.ClickAt(60, 20);
}

}

class RotateActionTest final : public QObject
{
    Q_OBJECT

private slots:
    void whatIsSelectedTurnsInOneStep()
    {
        Fixture f;
        BeginTurn(f);

        f.ClickAt(10, 99);

        QVERIFY(f.action.IsFinished());
        QCOMPARE(ShapeOf(f, 1), Shape(LineShape{{30, 10, 0}, {30, 50, 0}}));
        QCOMPARE(ShapeOf(f, 2), Shape(CircleShape{{-70, 110, 0}, 1.0 / 3.0, {0, 0, 1}}));
        QCOMPARE(ShapeOf(f, 3), Shape(LineShape{{0, -80, 0}, {40, -80, 0}}));
        QVERIFY(f.IsRepeated(&SelectTwo));

        QCOMPARE(f.workspace.sketch.Undo(), 2);
        QCOMPARE(ShapeOf(f, 1), Shape(LineShape{{0, 0, 0}, {40, 0, 0}}));
        QCOMPARE(ShapeOf(f, 2), Shape(CircleShape{{100, 100, 0}, 1.0 / 3.0, {0, 0, 1}}));
    }

    void aTypedAngleTurnsByIt_data()
    {
        QTest::addColumn<double>("degrees");

        QTest::newRow("quarter") << 90.0;
        QTest::newRow("clockwise") << -90.0;
        QTest::newRow("crooked") << 12.34567;
        QTest::newRow("long way") << -275.5;
        QTest::newRow("smaller than the end point tells") << 1e-9;
    }

    void aTypedAngleTurnsByIt()
    {
        QFETCH(double, degrees);
        Fixture f;
        BeginTurn(f);
        f.MoveTo(-5, 33);

        f.Type(ActionViewInput::CentralAngleCommitted, degrees);

        QCOMPARE(ShapeOf(f, 1),
                 Rotated(Shape(LineShape{{0, 0, 0}, {40, 0, 0}}), {10, 20, 0}, degrees));
        QVERIFY(f.action.IsFinished());
        QVERIFY(f.IsRepeated(&SelectTwo));
    }

    void anAngleHasNothingToDoWithTheUnitOfLengths()
    {
        LengthUnit::SetCurrent(LengthUnit::Inch());
        Fixture f;
        BeginTurn(f);

        f.Type(ActionViewInput::CentralAngleCommitted, 90);

        LengthUnit::SetCurrent(LengthUnit::Millimetre());
        QCOMPARE(ShapeOf(f, 1), Shape(LineShape{{30, 10, 0}, {30, 50, 0}}));
    }

    void aClickOnTheCentreGivesNoDirection()
    {
        Fixture f;
        SelectTwo(f.workspace);
        f.Begin();
        f.ClickAt(10, 20);
        f.ClickAt(10, 70);

        f.ClickAt(10, 20);

        QVERIFY(!f.action.IsFinished());
    }

    void aCrookedDirectionIsRepeatedToTheLastBit()
    {
        Fixture f;
        BeginTurn(f);

        f.ClickAt(-17.3, 100.0 / 7.0);

        QVERIFY(f.action.IsFinished());
        QVERIFY(f.IsRepeated(&SelectTwo));
    }

    void withNothingSelectedEntitiesArePickedFirst()
    {
        Fixture f;
        DrawThree(f.workspace);
        f.Begin();

        f.ClickAt(200, 200);
        f.ClickAt(20, 3);
        f.ClickAt(20, -77);
        f.ClickAt(0, -40);
        f.ClickAt(50, -40);
        f.ClickAt(0, 10);

        QCOMPARE(f.workspace.selection.GetIds(), (std::vector<int>{1, 3}));
        QVERIFY(f.action.IsFinished());
        QCOMPARE(ShapeOf(f, 1), Shape(LineShape{{-40, -40, 0}, {-40, 0, 0}}));
        QVERIFY(f.IsRepeated(&DrawThree));
    }

    void anEntityThatWasPickedGivesTheCentre()
    {
        Fixture f;
        f.view.GetCamera().SetSize(400, 300);
        DrawThree(f.workspace);
        f.Begin();

        f.ClickAt(20, 3);
        f.ClickAt(37, 2);
        f.ClickAt(80, 0);
        f.Type(ActionViewInput::CentralAngleCommitted, 90);

        QCOMPARE(ShapeOf(f, 1), Shape(LineShape{{40, -40, 0}, {40, 0, 0}}));
        QVERIFY(f.IsRepeated(&DrawThree));
    }

    void whatIsSelectedIsNotPickedAnew()
    {
        Fixture f;
        SelectTwo(f.workspace);
        f.Begin();

        f.ClickAt(20, -79);

        QCOMPARE(f.workspace.selection.GetIds().size(), std::size_t{2});
        f.ClickAt(90, -79);
        f.Type(ActionViewInput::CentralAngleCommitted, 180);
        QVERIFY(f.action.IsFinished());
        QCOMPARE(ShapeOf(f, 1), Shape(LineShape{{40, -158, 0}, {0, -158, 0}}));
    }

    void noTurnIsNothing()
    {
        Fixture f;
        BeginTurn(f);

        f.ClickAt(60, 20);
        f.ClickAt(10, 20);
        f.ClickAt(99, 20);
        f.Type(ActionViewInput::CentralAngleCommitted, 0);
        f.Type(ActionViewInput::CentralAngleCommitted, -360);

        QVERIFY(!f.action.IsFinished());
        QCOMPARE(f.records.size(), std::size_t{2});
        QVERIFY(!TemporaryDimensionMgr::GetInstance()->IsLocked(InputState::IS_CentralAngle));
        f.ClickAt(10, 99);
        QVERIFY(f.action.IsFinished());
    }

    void angleThatTurnsNothingIsRefused_data()
    {
        QTest::addColumn<double>("degrees");
        QTest::addColumn<bool>("isRefused");

        QTest::newRow("none") << 0.0 << true;
        QTest::newRow("a whole turn") << 360.0 << true;
        QTest::newRow("a whole turn back") << -360.0 << true;
        QTest::newRow("a quarter") << 90.0 << false;
        QTest::newRow("hardly one") << -0.001 << false;
    }

    void angleThatTurnsNothingIsRefused()
    {
        QFETCH(double, degrees);
        QFETCH(bool, isRefused);
        Fixture f;
        BeginTurn(f);
        f.ClickAt(60, 20);
        f.MoveTo(99, 77);

        const std::wstring refusal = f.action.GetRefusal(InputState::IS_CentralAngle, degrees);

        QCOMPARE(!refusal.empty(), isRefused);
        QVERIFY(!f.action.IsFinished());
        f.Type(ActionViewInput::CentralAngleCommitted, degrees);
        QCOMPARE(f.action.IsFinished(), !isRefused);
    }

    void whenTheSelectionGoesItIsAskedForAgain()
    {
        Fixture f;
        DrawThree(f.workspace);
        f.workspace.selection.Select({3});
        f.Begin();
        f.ClickAt(0, 0);
        f.ClickAt(50, 0);

        f.workspace.sketch.Undo();
        QVERIFY(f.Offered<RotationTemporaryDimensionContext>() == nullptr);
        f.Type(ActionViewInput::CentralAngleCommitted, 90);
        f.ClickAt(200, 50);
        QVERIFY(!f.action.IsFinished());
        f.ClickAt(20, 3);
        f.Type(ActionViewInput::CentralAngleCommitted, 90);

        QVERIFY(f.action.IsFinished());
        QCOMPARE(ShapeOf(f, 1), Shape(LineShape{{0, 0, 0}, {0, 40, 0}}));
    }

    void directionsAreOffered()
    {
        Fixture f;
        BeginTurn(f);
        const auto opAtRest = f.Offered<RotationTemporaryDimensionContext>();
        QCOMPARE(opAtRest->GetToPoint(), Vector3d(61, 20, 0));

        f.MoveTo(13, 24);

        const auto opContext = f.Offered<RotationTemporaryDimensionContext>();
        QCOMPARE(opContext->GetCentre(), Vector3d(10, 20, 0));
        QCOMPARE(opContext->GetFromPoint(), Vector3d(60, 20, 0));
        QCOMPARE(opContext->GetToPoint(), Vector3d(13, 24, 0));
    }

    void everyStepHasItsHint()
    {
        Fixture f;
        DrawThree(f.workspace);
        f.Begin();

        QStringList hints;
        for (const double x : {20.0, 200.0, 250.0, 0.0})
        {
            hints << QString::fromStdWString(f.action.GetViewText());
            f.ClickAt(x, 0);
        }

        QCOMPARE(hints.removeDuplicates(), 0);
    }

    void anEntityThatCannotBePickedIsNotRepeated()
    {
        Fixture f;
        SelectTwo(f.workspace);
        f.Begin();

        QVERIFY(!f.action.ReplayPoint({0, 0, 0}, 3));
        f.workspace.selection.Select({});
        QVERIFY(!f.action.ReplayPoint({0, 0, 0}, std::nullopt));
        QVERIFY(!f.action.ReplayPoint({0, 0, 0}, 99));
        QVERIFY(!f.action.ReplayValue(InputState::IS_CentralAngle, L"90", 90));
    }

private:
    static Shape ShapeOf(const Fixture& f, int id) { return f.workspace.sketch.Find(id)->shape; }
};

VESK_TESTS(RotateActionTest);
#include "RotateActionTest.moc"
