#include "Tools/MirrorAction.h"

#include "Tools/ActionFixture.h"
#include "Tools/ShownGraphics.h"

#include "Dimension/LinearTemporaryDimensionContext.h"
#include "ShapeValues.h"

using namespace vesk;

Q_DECLARE_METATYPE(Vector3d)
using Fixture = ActionFixture<MirrorAction>;

namespace
{

void SelectOne(Workspace& workspace)
{
    workspace.sketch.SetCurrentPen(&Pen::width, 4);
    workspace.sketch.AddLine({0, 0, 0}, {40, 10, 0});
    workspace.sketch.AddLine({0, -80, 0}, {40, -80, 0});
    workspace.selection.Select({1});
}

/// Proceeds to the second point of an axis through (60, 20).
void BeginOnAxis(Fixture& f)
{
    SelectOne(f.workspace);
    f.records.clear();
    f.Begin();
    f.ClickAt(60, 20);
}

}

class MirrorActionTest final : public QObject
{
    Q_OBJECT

private slots:
    void theImageIsDrawnInOneStepAndTheOriginalStays()
    {
        Fixture f;
        BeginOnAxis(f);

        f.ClickAt(60, 99);

        QVERIFY(f.action.IsFinished());
        QCOMPARE(f.Count(), std::size_t{3});
        QCOMPARE(f.workspace.sketch.Find(1)->shape, Shape(LineShape{{0, 0, 0}, {40, 10, 0}}));
        QCOMPARE(f.workspace.sketch.Find(3)->shape, Shape(LineShape{{120, 0, 0}, {80, 10, 0}}));
        QCOMPARE(f.workspace.sketch.Find(3)->pen.width, 4);
        QCOMPARE(f.workspace.sketch.GetUndoText(), std::wstring(L"镜像"));
        QVERIFY(f.IsRepeated(&SelectOne));
    }

    void aTypedAngleIsTheAxis_data()
    {
        QTest::addColumn<double>("degrees");
        QTest::addColumn<Vector3d>("start");
        QTest::addColumn<Vector3d>("end");

        QTest::newRow("0") << 0.0 << Vector3d(0, 40, 0) << Vector3d(40, 30, 0);
        QTest::newRow("90") << 90.0 << Vector3d(120, 0, 0) << Vector3d(80, 10, 0);
        QTest::newRow("45") << 45.0 << Vector3d(40, -40, 0) << Vector3d(50, 0, 0);
    }

    void aTypedAngleIsTheAxis()
    {
        QFETCH(double, degrees);
        QFETCH(Vector3d, start);
        QFETCH(Vector3d, end);
        Fixture f;
        BeginOnAxis(f);
        f.MoveTo(77, 31);

        f.Type(ActionViewInput::AngleEntered, degrees);
        f.Type(ActionViewInput::LengthCommitted, 1.0 / 3.0);

        QCOMPARE(f.Drawn<LineShape>(), (LineShape{start, end}));
        QVERIFY(f.IsRepeated(&SelectOne));
    }

    void aClickOnTheFirstPointGivesNoAxis()
    {
        Fixture f;
        BeginOnAxis(f);

        f.ClickAt(60, 20);

        QVERIFY(!f.action.IsFinished());
        QVERIFY(!f.action.ReplayPoint({60 + 1e-8, 20, 0}, std::nullopt));
        QCOMPARE(f.Count(), std::size_t{2});
    }

    void theAxisIsHeldToMultiplesOf15Degrees()
    {
        Fixture f;
        BeginOnAxis(f);
        f.workspace.isDirectionHeld = true;

        f.ClickAt(63, 90);

        QCOMPARE(f.Drawn<LineShape>(), (LineShape{{120, 0, 0}, {80, 10, 0}}));
        QVERIFY(f.IsRepeated(&SelectOne));
    }

    void aCrookedAxisIsRepeatedToTheLastBit()
    {
        Fixture f;
        BeginOnAxis(f);

        f.ClickAt(-17.3, 100.0 / 7.0);

        QVERIFY(f.action.IsFinished());
        QVERIFY(f.IsRepeated(&SelectOne));
    }

    void theAxisAndTheImageAreShown()
    {
        Fixture f;
        BeginOnAxis(f);
        const std::size_t atRest = ShownGraphics(*f.action.CreateRubberBand()).lines.size();

        f.MoveTo(60, 99);

        const ShownGraphics shown(*f.action.CreateRubberBand());
        QVERIFY(atRest <= std::size_t{1});
        QCOMPARE(shown.lines.size(), std::size_t{2});
        QCOMPARE(shown.lines[0].end, Vector3d(60, 99, 0));
        QCOMPARE(shown.lines[1].start, Vector3d(120, 0, 0));
        QCOMPARE(shown.lines[1].end, Vector3d(80, 10, 0));
    }

    void anImageTooFarAwayIsRefused()
    {
        Fixture f;
        SelectOne(f.workspace);
        f.records.clear();
        f.Begin();
        // Twice as far away its distance is no longer a number.
        f.ClickAt(1.2e154, 0);

        f.ClickAt(1.2e154, 50);

        QVERIFY(!f.action.IsFinished());
        QVERIFY(!f.action.ReplayPoint({1.2e154, 50, 0}, std::nullopt));
        QCOMPARE(f.Count(), std::size_t{2});
    }

    void beforeTheAxisNothingIsTyped()
    {
        Fixture f;
        SelectOne(f.workspace);
        f.records.clear();
        f.Begin();

        f.Type(ActionViewInput::AngleEntered, 45);

        QVERIFY(!f.action.ReplayValue(InputState::IS_Angle, L"45", 45));
        QVERIFY(f.records.empty());
    }

    void theAxisIsOffered()
    {
        Fixture f;
        BeginOnAxis(f);

        f.MoveTo(13, 24);

        const auto opContext = f.Offered<LinearTemporaryDimensionContext>();
        QVERIFY(opContext != nullptr);
        QCOMPARE(opContext->GetStartPoint(), Vector3d(60, 20, 0));
        QCOMPARE(opContext->GetEndPoint(), Vector3d(13, 24, 0));
    }
};

VESK_TESTS(MirrorActionTest);
#include "MirrorActionTest.moc"
