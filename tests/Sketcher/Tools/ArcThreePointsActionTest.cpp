#include "Tools/ArcThreePointsAction.h"

#include "Model/ArcGeometry.h"
#include "Model/ShapeMeasure.h"
#include "Tools/ActionFixture.h"
#include "Tools/ArcConstruction.h"
#include "Tools/ShownGraphics.h"

#include "Dimension/LengthUnit.h"
#include "Dimension/RadiusTemporaryDimensionContext.h"
#include "ShapeValues.h"

#include <cmath>

using namespace vesk;
using Fixture = ActionFixture<ArcThreePointsAction>;

Q_DECLARE_METATYPE(Vector3d)

namespace
{

/// Proceeds to the last step of an arc from (-5, 0) to (5, 0).
void BeginArc(Fixture& f)
{
    f.Begin();
    f.ClickAt(-5, 0);
    f.ClickAt(5, 0);
}

}

class ArcThreePointsActionTest final : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { LengthUnit::SetCurrent(LengthUnit::Millimetre()); }

    void threePointsMakeAnArc()
    {
        Fixture f;
        f.Begin();

        f.ClickAt(-5, 0);
        f.ClickAt(5, 0);
        f.ClickAt(3, -4);

        const ArcShape arc = f.Drawn<ArcShape>();
        QCOMPARE(arc.start, Vector3d(-5, 0, 0));
        QCOMPARE(arc.end, Vector3d(5, 0, 0));
        QVERIFY(arc.centre.norm() < 1e-12);
        QCOMPARE(arc.normal, Vector3d(0, 0, 1));
        QVERIFY(f.IsRepeated());
    }

    void theClickedArcIsTheOneThroughItsPointsInTheirOrder()
    {
        Fixture f;
        f.Begin();

        f.ClickAt(0.1, 0.2);
        f.ClickAt(7.3, 1.1);
        f.ClickAt(3.7, 5.9);

        QCOMPARE(f.Drawn<ArcShape>(), *ArcThrough({0.1, 0.2, 0}, {7.3, 1.1, 0}, {3.7, 5.9, 0}));
    }

    void aRadiusThatSpansNoArcIsRefused()
    {
        Fixture f;
        BeginArc(f);
        f.MoveTo(1, 4);

        QVERIFY(!f.action.GetRefusal(InputState::IS_Radius, 4.9).empty());
        QVERIFY(f.action.GetRefusal(InputState::IS_Radius, 5.1).empty());
    }

    void clickedArcsAreRepeatedToTheLastBit()
    {
        Fixture f;

        f.DrawFiftyCrookedShapes(3);

        QCOMPARE(f.Count(), std::size_t{50});
        QVERIFY(f.IsRepeated());
    }

    void aTypedRadiusMakesTheArcThatTheCursorShows_data()
    {
        QTest::addColumn<double>("radius");
        QTest::addColumn<Vector3d>("cursor");
        QTest::addColumn<bool>("isLonger");

        QTest::newRow("above") << 13.0 << Vector3d(1, 4, 0) << false;
        QTest::newRow("below") << 13.0 << Vector3d(-4, -1, 0) << false;
        QTest::newRow("longer above") << 13.0 << Vector3d(1, 6, 0) << true;
        QTest::newRow("longer below") << 13.0 << Vector3d(40, -90, 0) << true;
        QTest::newRow("half circle") << 5.0 << Vector3d(0, 2, 0) << false;
        QTest::newRow("tenth") << 5.1 << Vector3d(0, -2, 0) << false;
        QTest::newRow("greatest") << 1e9 << Vector3d(0, 2, 0) << false;
    }

    void aTypedRadiusMakesTheArcThatTheCursorShows()
    {
        QFETCH(double, radius);
        QFETCH(Vector3d, cursor);
        QFETCH(bool, isLonger);
        Fixture f;
        BeginArc(f);
        f.MoveTo(cursor.x(), cursor.y());

        f.Type(ActionViewInput::RadiusCommitted, radius);

        const ArcShape arc = f.Drawn<ArcShape>();
        QCOMPARE(arc.radius, radius);
        QCOMPARE_EXACTLY(arc.start.x(), (cursor.y() > 0 ? 5 : -5));
        QCOMPARE(CentralAngleOf(arc) > 180.0 + 1e-9, isLonger);
        QVERIFY(f.IsRepeated());
    }

    void aRadiusConfirmedUnchangedKeepsTheArcThatIsShown_data()
    {
        QTest::addColumn<Vector3d>("cursor");

        QTest::newRow("shorter") << Vector3d(1, 2, 0);
        QTest::newRow("longer") << Vector3d(-3, 17, 0);
        QTest::newRow("beyond the end") << Vector3d(9, -1, 0);
        for (int i = 1; i <= 10; ++i)
            QTest::addRow("crooked %d", i) << Vector3d(i / 7.0 - 0.6, i / 3.0, 0);
    }

    void aRadiusConfirmedUnchangedKeepsTheArcThatIsShown()
    {
        QFETCH(Vector3d, cursor);
        Fixture f;
        BeginArc(f);
        f.MoveTo(cursor.x(), cursor.y());
        const ArcShape shown = *ArcThrough({-5, 0, 0}, {5, 0, 0}, cursor);

        f.Type(ActionViewInput::RadiusCommitted, shown.radius, true);

        const ArcShape arc = f.Drawn<ArcShape>();
        QCOMPARE_EXACTLY(arc.radius, shown.radius);
        QCOMPARE(arc.start, shown.start);
        QCOMPARE(arc.end, shown.end);
        QVERIFY((arc.centre - shown.centre).norm() <= 1e-9);
        QVERIFY(f.IsRepeated());
    }

    void aRadiusConfirmedUnchangedIsThatOfTheArcToTheLastBit()
    {
        const Vector3d start(-1.0 / 3.0, 0.1, 0);
        const Vector3d end(7.7, 8.9, 0);
        for (int i = 1; i <= 20; ++i)
        {
            Fixture f;
            f.Begin();
            f.ClickAt(start.x(), start.y());
            f.ClickAt(end.x(), end.y());
            f.MoveTo(i / 7.0 + 20, i / 3.0 - 9);

            const Vector3d cursor(i / 7.0 + 20, i / 3.0 - 9, 0);
            const double radius = ArcThrough(start, end, cursor)->radius;
            f.Type(ActionViewInput::RadiusCommitted, std::round(radius * 1000.0) / 1000.0, true);

            QCOMPARE_EXACTLY(f.Drawn<ArcShape>().radius, radius);
        }
    }

    void aRadiusCanBeTypedBeforeTheMouseMoves_data()
    {
        QTest::addColumn<Vector3d>("start");
        QTest::addColumn<Vector3d>("end");
        QTest::addColumn<Vector3d>("top");

        const Vector3d origin(0, 0, 0);
        QTest::newRow("chord along x") << origin << Vector3d(10, 0, 0) << Vector3d(5, 5, 0);
        QTest::newRow("chord back along x") << origin << Vector3d(-10, 0, 0) << Vector3d(-5, -5, 0);
        QTest::newRow("chord along y") << origin << Vector3d(0, 10, 0) << Vector3d(-5, 5, 0);
        QTest::newRow("elsewhere")
            << Vector3d(20, 30, 0) << Vector3d(30, 30, 0) << Vector3d(25, 35, 0);
    }

    void aRadiusCanBeTypedBeforeTheMouseMoves()
    {
        QFETCH(Vector3d, start);
        QFETCH(Vector3d, end);
        QFETCH(Vector3d, top);
        Fixture f;
        f.Begin();
        f.ClickAt(start.x(), start.y());
        f.ClickAt(end.x(), end.y());

        // It shows the half circle to the left of the chord.
        const auto opContext = f.Offered<RadiusTemporaryDimensionContext>();
        QCOMPARE(opContext->GetThirdPoint(), top);
        f.Type(ActionViewInput::RadiusCommitted, 7);

        QCOMPARE(f.Drawn<ArcShape>().radius, 7.0);
        QVERIFY(CentralAngleOf(f.Drawn<ArcShape>()) < 180.0);
        QVERIFY(f.IsRepeated());
    }

    void theRangeBeginsAtHalfTheChordInTheUnitShown()
    {
        LengthUnit::SetCurrent(LengthUnit::Centimetre());
        Fixture f;
        f.Begin();
        f.ClickAt(-50, 0);
        QVERIFY(f.Offered<RadiusTemporaryDimensionContext>() == nullptr);
        f.ClickAt(50, 0);

        const Intervald range = f.Offered<RadiusTemporaryDimensionContext>()->GetFirstValueRange();

        QCOMPARE(range.GetMin(), 5.0);
        QCOMPARE(range.GetMax(), 1e8);
    }

    void theLeastRadiusOfTheRangeIsTaken()
    {
        LengthUnit::SetCurrent(LengthUnit::Inch());
        Fixture f;
        f.Begin();
        f.ClickAt(-1.0 / 3.0, 0.1);
        f.ClickAt(7.7, 8.9);
        f.MoveTo(0, 8);

        const double least =
            f.Offered<RadiusTemporaryDimensionContext>()->GetFirstValueRange().GetMin();
        f.Type(ActionViewInput::RadiusCommitted, least);

        QVERIFY(std::abs(CentralAngleOf(f.Drawn<ArcShape>()) - 180.0) < 1e-4);
        QVERIFY(f.IsRepeated());
    }

    void theThreePointsAreOffered()
    {
        Fixture f;
        f.Begin();
        f.ClickAt(-5, 0);
        f.ClickAt(5, 1);

        f.MoveTo(2, 30);

        const auto opContext = f.Offered<RadiusTemporaryDimensionContext>();
        QCOMPARE(opContext->GetFirstPoint(), Vector3d(-5, 0, 0));
        QCOMPARE(opContext->GetSecondPoint(), Vector3d(5, 1, 0));
        QCOMPARE(opContext->GetThirdPoint(), Vector3d(2, 30, 0));
        QVERIFY(!opContext->IsCentralAngleShown());
    }

    void onTheChordAPixelToTheLeftIsOffered()
    {
        Fixture f;
        f.view.GetCamera().SetWorldPerPixel(0.5);
        BeginArc(f);

        f.MoveTo(1, 0);

        QCOMPARE(f.Offered<RadiusTemporaryDimensionContext>()->GetThirdPoint(),
                 Vector3d(1, 0.5, 0));
    }

    void aClickOnTheEndMeansNothing()
    {
        Fixture f;
        f.workspace.snapper.SetOn(Snapper::End, false);
        BeginArc(f);

        // Rounded to the side, it would make a half circle.
        f.ClickAt(5, 5e-10);

        QCOMPARE(f.Count(), std::size_t{0});
        QCOMPARE(f.records.size(), std::size_t{2});
    }

    void whatIsNoArcIsNotDrawn()
    {
        Fixture f;
        f.workspace.snapper.SetOn(Snapper::End, false);
        f.Begin();

        f.ClickAt(-5, 0);
        f.ClickAt(-5, 0);
        QCOMPARE(f.records.size(), std::size_t{1});
        f.ClickAt(5, 0);
        f.ClickAt(5, 0);
        f.ClickAt(-5, 0);
        f.ClickAt(1, 0);
        f.Type(ActionViewInput::RadiusCommitted, 1.0);

        QCOMPARE(f.Count(), std::size_t{0});
        QCOMPARE(f.records.size(), std::size_t{2});
        f.ClickAt(0, 5);
        QCOMPARE(f.Count(), std::size_t{1});
        QVERIFY(f.IsRepeated());
    }

    void aChordThatIsNoLineIsNotTaken()
    {
        Fixture f;
        f.Begin();
        f.ClickAt(-5, 0);

        f.ClickAt(-5 + 5e-7, 0);

        QCOMPARE(f.records.size(), std::size_t{1});
        QVERIFY(f.Offered<RadiusTemporaryDimensionContext>() == nullptr);
    }

    void aRadiusIsTakenOnceThereIsAnEnd()
    {
        Fixture f;
        f.Begin();
        f.ClickAt(-5, 0);
        QVERIFY(!f.action.ReplayValue(InputState::IS_Radius, L"7", 7));

        f.ClickAt(5, 0);

        QVERIFY(!f.action.ReplayValue(InputState::IS_Length, L"7", 7));
        QVERIFY(!f.action.ReplayValue(InputState::IS_CentralAngle, L"7", 7));
        QVERIFY(f.action.ReplayValue(InputState::IS_Radius, L"7", 7));
    }

    void aPointOnTheChordMeansTheLeftSide()
    {
        Fixture f;
        BeginArc(f);
        f.action.ReplayValue(InputState::IS_Radius, L"7", 7);

        QVERIFY(f.action.ReplayPoint({1, 0, 0}, std::nullopt));

        QCOMPARE(f.Drawn<ArcShape>().start, Vector3d(5, 0, 0));
        QVERIFY(f.Drawn<ArcShape>().centre.y() < 0.0);
    }

    void theStepOfATypedRadiusEndsOnItsArc()
    {
        Fixture f;
        BeginArc(f);
        f.MoveTo(1, 4);

        f.Type(ActionViewInput::RadiusCommitted, 13);

        const auto* pEnd = std::get_if<PointRecord>(&f.records.back().what);
        QVERIFY(pEnd != nullptr);
        QVERIFY(DistanceTo(f.Drawn<ArcShape>(), pEnd->point) <= 1e-9);
    }

    void theChordIsShownUntilThereIsAnArc()
    {
        Fixture f;
        f.Begin();
        QVERIFY(f.action.CreateRubberBand() == nullptr);
        f.ClickAt(-5, 0);
        f.MoveTo(2, 3);
        const ShownGraphics first(*f.action.CreateRubberBand());
        f.ClickAt(5, 0);
        f.MoveTo(1, 0);
        const ShownGraphics onChord(*f.action.CreateRubberBand());

        QCOMPARE(first.lines.size(), std::size_t{1});
        QCOMPARE(first.lines[0].start, Vector3d(-5, 0, 0));
        QCOMPARE(first.lines[0].end, Vector3d(2, 3, 0));
        QCOMPARE(first.arcs.size(), std::size_t{0});
        QCOMPARE(onChord.lines.size(), std::size_t{1});
        QCOMPARE(onChord.lines[0].start, Vector3d(-5, 0, 0));
        QCOMPARE(onChord.lines[0].end, Vector3d(5, 0, 0));
        QCOMPARE(onChord.arcs.size(), std::size_t{0});
    }

    void theArcIsShownAlone()
    {
        Fixture f;
        BeginArc(f);

        f.MoveTo(3, -4);

        const ShownGraphics shown(*f.action.CreateRubberBand());
        QCOMPARE(shown.lines.size(), std::size_t{0});
        QCOMPARE(shown.arcs.size(), std::size_t{1});
        QCOMPARE(shown.arcs[0].start, Vector3d(-5, 0, 0));
        QCOMPARE(shown.arcs[0].radius, 5.0);
        QCOMPARE(shown.arcs[0].sweep, std::acos(-1.0));
    }

    void everyStepHasItsHint()
    {
        Fixture f;
        f.Begin();

        const std::wstring first = f.action.GetViewText();
        f.ClickAt(-5, 0);
        const std::wstring second = f.action.GetViewText();
        f.ClickAt(5, 0);
        const std::wstring third = f.action.GetViewText();
        f.ClickAt(0, 5);

        QVERIFY(first.find(L"单击起点，") != std::wstring::npos);
        QVERIFY(second.find(L"单击端点，") != std::wstring::npos);
        QVERIFY(third.find(L"单击弧上一点，") != std::wstring::npos);
        QCOMPARE(f.action.GetViewText(), first);
    }
};

VESK_TESTS(ArcThreePointsActionTest);
#include "ArcThreePointsActionTest.moc"
