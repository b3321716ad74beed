#include "Tools/ArcCentreAction.h"

#include "Model/ArcGeometry.h"
#include "Tools/ActionFixture.h"
#include "Tools/ShownGraphics.h"

#include "Dimension/CentralAngleTemporaryDimensionContext.h"

#include <cmath>

using namespace vesk;
using Fixture = ActionFixture<ArcCentreAction>;

namespace
{

/// Proceeds to the last step of an arc about (10, 20) that starts at (15, 20).
void BeginArc(Fixture& f)
{
    f.Begin();
    f.ClickAt(10, 20);
    f.ClickAt(15, 20);
}

}

class ArcCentreActionTest final : public QObject
{
    Q_OBJECT

private slots:
    void aClickMakesTheShorterArc()
    {
        Fixture f;
        f.workspace.snapper.SetOn(Snapper::End, false);
        BeginArc(f);
        f.ClickAt(10, 99);
        const ArcShape up = f.Drawn<ArcShape>();
        f.ClickAt(10, 20);
        f.ClickAt(15, 20);
        f.ClickAt(10, -99);
        const ArcShape down = f.Drawn<ArcShape>();

        QCOMPARE(up.start, Vector3d(15, 20, 0));
        QCOMPARE(up.end, Vector3d(10, 25, 0));
        QCOMPARE(down.start, Vector3d(10, 15, 0));
        QCOMPARE(down.end, Vector3d(15, 20, 0));
        QCOMPARE(up.radius, 5.0);
        QVERIFY(f.IsRepeated());
    }

    void clickedArcsAreRepeatedToTheLastBit()
    {
        Fixture f;

        f.DrawFiftyCrookedShapes(3);

        QCOMPARE(f.Count(), std::size_t{50});
        QVERIFY(f.IsRepeated());
    }

    void aTypedAngleMakesItsArc_data()
    {
        QTest::addColumn<double>("degrees");

        QTest::newRow("quarter") << 90.0;
        QTest::newRow("clockwise") << -90.0;
        QTest::newRow("long way") << 300.0;
        QTest::newRow("long way clockwise") << -300.0;
        QTest::newRow("crooked") << 12.34567;
        QTest::newRow("whole turn") << 360.0;
        QTest::newRow("whole turn clockwise") << -360.0;
    }

    void aTypedAngleMakesItsArc()
    {
        QFETCH(double, degrees);
        Fixture f;
        BeginArc(f);
        f.MoveTo(-30, 5);

        f.Type(ActionViewInput::CentralAngleCommitted, degrees);

        const ArcShape arc = f.Drawn<ArcShape>();
        QCOMPARE(arc.normal, Vector3d(0, 0, 1));
        QCOMPARE((degrees > 0 ? arc.start : arc.end), Vector3d(15, 20, 0));
        QVERIFY(std::abs(CentralAngleOf(arc) - std::abs(degrees)) < 1e-9);
        QVERIFY(f.IsRepeated());
    }

    void theStepOfATypedAngleEndsOnItsArc()
    {
        Fixture f;
        BeginArc(f);
        f.MoveTo(-30, 5);

        f.Type(ActionViewInput::CentralAngleCommitted, 90);

        const auto* pEnd = std::get_if<PointRecord>(&f.records.back().what);
        QVERIFY(pEnd != nullptr);
        QCOMPARE(pEnd->point, Vector3d(10, 25, 0));
    }

    void anAngleThatIsOnlyConfirmedIsNotRounded()
    {
        Fixture f;
        BeginArc(f);
        f.MoveTo(13, 21);

        f.Type(ActionViewInput::CentralAngleCommitted, 18.43, true);

        const double degrees = std::atan2(1, 3) * 180.0 / std::acos(-1.0);
        QVERIFY(std::abs(CentralAngleOf(f.Drawn<ArcShape>()) - degrees) < 1e-9);
        QVERIFY(f.IsRepeated());
    }

    void theEndOfferedLiesOnTheCircle()
    {
        Fixture f;
        BeginArc(f);

        f.MoveTo(13, 24);

        const auto opContext = f.Offered<CentralAngleTemporaryDimensionContext>();
        QCOMPARE(opContext->GetCentre(), Vector3d(10, 20, 0));
        QCOMPARE(opContext->GetStartPoint(), Vector3d(15, 20, 0));
        QVERIFY((opContext->GetEndPoint() - Vector3d(13, 24, 0)).norm() < 1e-12);
        QCOMPARE(opContext->GetCursorPoint(), Vector3d(13, 24, 0));
    }

    void atRestTheCursorIsAPixelAway_data()
    {
        QTest::addColumn<double>("x");

        QTest::newRow("on the start") << 15.0;
        QTest::newRow("on the centre") << 10.0;
    }

    void atRestTheCursorIsAPixelAway()
    {
        QFETCH(double, x);
        Fixture f;
        BeginArc(f);

        f.ClickAt(x, 20);

        QCOMPARE(f.Count(), std::size_t{0});
        const auto opContext = f.Offered<CentralAngleTemporaryDimensionContext>();
        QCOMPARE(opContext->GetCursorPoint(), Vector3d(x + 1, 20, 0));
        QCOMPARE(opContext->GetEndPoint(), Vector3d(15, 20, 0));
    }

    void aClickOnTheStartMeansNothing()
    {
        Fixture f;
        f.Begin();
        f.ClickAt(10, 20);
        f.ClickAt(10, 25);

        f.ClickAt(10, 25);

        QCOMPARE(f.Count(), std::size_t{0});
        QCOMPARE(f.records.size(), std::size_t{2});
    }

    void whatIsNoArcIsNotDrawn()
    {
        Fixture f;
        f.workspace.snapper.SetOn(Snapper::End, false);
        f.Begin();

        f.ClickAt(10, 20);
        f.ClickAt(10, 20);
        f.ClickAt(15, 20);
        f.ClickAt(77, 20);
        f.Type(ActionViewInput::CentralAngleCommitted, 0.0);
        f.Type(ActionViewInput::CentralAngleCommitted, 1e-12);
        QCOMPARE(f.Count(), std::size_t{0});
        QCOMPARE(f.records.size(), std::size_t{2});
        f.ClickAt(10, 77);

        QCOMPARE(f.Count(), std::size_t{1});
        QVERIFY(f.IsRepeated());
    }

    void aRadiusThatIsTooSmallIsNotTaken()
    {
        Fixture f;
        f.workspace.snapper.SetOn(Snapper::End, false);
        f.Begin();
        f.ClickAt(10, 20);

        f.ClickAt(10 + 5e-7, 20);

        QCOMPARE(f.records.size(), std::size_t{1});
        QVERIFY(f.Offered<CentralAngleTemporaryDimensionContext>() == nullptr);
    }

    void angleThatGivesNoArcIsRefused_data()
    {
        QTest::addColumn<double>("degrees");
        QTest::addColumn<bool>("isRefused");

        QTest::newRow("none") << 0.0 << true;
        QTest::newRow("lost in rounding") << 1e-12 << true;
        QTest::newRow("hardly one") << 0.001 << false;
        QTest::newRow("half a turn") << -180.0 << false;
        QTest::newRow("the whole turn") << 360.0 << false;
        QTest::newRow("the whole turn back") << -360.0 << false;
    }

    void angleThatGivesNoArcIsRefused()
    {
        QFETCH(double, degrees);
        QFETCH(bool, isRefused);
        Fixture f;
        BeginArc(f);
        f.MoveTo(77, 20);
        const std::size_t recordCount = f.records.size();

        const std::wstring refusal = f.action.GetRefusal(InputState::IS_CentralAngle, degrees);

        QCOMPARE(!refusal.empty(), isRefused);
        QCOMPARE(f.records.size(), recordCount);
        QCOMPARE(f.Count(), std::size_t{0});
        f.Type(ActionViewInput::CentralAngleCommitted, degrees);
        QCOMPARE(f.Count(), std::size_t(isRefused ? 0 : 1));
    }

    void halfATurnRunsCounterClockwiseFromTheStart()
    {
        Fixture f;
        BeginArc(f);

        f.ClickAt(-40, 20);

        QCOMPARE(f.Drawn<ArcShape>().start, Vector3d(15, 20, 0));
        QCOMPARE(f.Drawn<ArcShape>().end, Vector3d(5, 20, 0));
    }

    void anAngleIsTakenOnceThereIsAStart()
    {
        Fixture f;
        f.Begin();
        f.ClickAt(10, 20);
        QVERIFY(!f.action.ReplayValue(InputState::IS_CentralAngle, L"90", 90));

        f.ClickAt(15, 20);

        QVERIFY(!f.action.ReplayValue(InputState::IS_Radius, L"90", 90));
        QVERIFY(f.action.ReplayValue(InputState::IS_CentralAngle, L"90", 90));
    }

    void theSpokeIsShownUntilThereIsAnArc()
    {
        Fixture f;
        f.Begin();
        QVERIFY(f.action.CreateRubberBand() == nullptr);
        f.ClickAt(10, 20);
        f.MoveTo(13, 24);
        const ShownGraphics first(*f.action.CreateRubberBand());
        f.ClickAt(15, 20);
        const ShownGraphics atRest(*f.action.CreateRubberBand());

        QCOMPARE(first.lines.size(), std::size_t{1});
        QCOMPARE(first.lines[0].start, Vector3d(10, 20, 0));
        QCOMPARE(first.lines[0].end, Vector3d(13, 24, 0));
        QCOMPARE(first.arcs.size(), std::size_t{0});
        QCOMPARE(atRest.lines.size(), std::size_t{1});
        QCOMPARE(atRest.lines[0].end, Vector3d(15, 20, 0));
        QCOMPARE(atRest.arcs.size(), std::size_t{0});
    }

    void theArcIsShownWithItsSpoke()
    {
        Fixture f;
        BeginArc(f);

        f.MoveTo(10, 99);

        const ShownGraphics shown(*f.action.CreateRubberBand());
        QCOMPARE(shown.lines.size(), std::size_t{1});
        QCOMPARE(shown.lines[0].start, Vector3d(10, 20, 0));
        QCOMPARE(shown.lines[0].end, Vector3d(10, 25, 0));
        QCOMPARE(shown.arcs.size(), std::size_t{1});
        QCOMPARE(shown.arcs[0].centre, Vector3d(10, 20, 0));
        QCOMPARE(shown.arcs[0].start, Vector3d(15, 20, 0));
        QCOMPARE(shown.arcs[0].radius, 5.0);
        QCOMPARE(shown.arcs[0].sweep, std::acos(-1.0) / 2.0);
    }

    void thereIsNoAngleBeforeThereIsAStart()
    {
        Fixture f;
        f.Begin();
        QVERIFY(f.action.CreateDimensionContext() == nullptr);

        f.ClickAt(10, 20);

        QVERIFY(f.action.CreateDimensionContext() == nullptr);
    }

    void theNextArcBeginsWithItsSpokeAlone()
    {
        Fixture f;
        f.workspace.snapper.SetOn(Snapper::End, false);
        BeginArc(f);
        f.ClickAt(10, 25);

        f.ClickAt(10, 20);
        f.MoveTo(10, 15);

        QCOMPARE(ShownGraphics(*f.action.CreateRubberBand()).arcs.size(), std::size_t{0});
    }

    void everyStepHasItsHint()
    {
        Fixture f;
        f.Begin();

        const std::wstring first = f.action.GetViewText();
        f.ClickAt(10, 20);
        const std::wstring second = f.action.GetViewText();
        f.ClickAt(15, 20);
        const std::wstring third = f.action.GetViewText();
        f.ClickAt(10, 25);

        QVERIFY(first.find(L"单击圆心，") != std::wstring::npos);
        QVERIFY(second.find(L"单击起点，") != std::wstring::npos);
        QVERIFY(third.find(L"单击端点，") != std::wstring::npos);
        QCOMPARE(f.action.GetViewText(), first);
    }
};

VESK_TESTS(ArcCentreActionTest);
#include "ArcCentreActionTest.moc"
