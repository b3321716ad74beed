#include "Model/Snapper.h"

#include "Model/Grid.h"
#include "Model/Sketch.h"
#include "Support/TestValues.h"
#include "Support/TestView.h"

Q_DECLARE_METATYPE(vesk::Vector3d)

using vesk::Vector3d;

namespace
{

/// A view of 400 x 300 pixels at one unit per pixel, a grid of 10, and two crossing lines: from (0,
/// 0) to (100, 0) and from (80, -30) to (80, 70).
struct Fixture
{
    Fixture()
    {
        view.GetCamera().SetSize(400, 300);
        sketch.AddLine({0, 0, 0}, {100, 0, 0});
        sketch.AddLine({80, -30, 0}, {80, 70, 0});
        snapper.SetOn(Snapper::End, false);
    }

    Vector3d Catch(double x, double y) { return snapper.Catch({x, y, 0}, &view); }

    Sketch sketch;
    vesk::test::TestView view{1, nullptr};
    Snapper snapper{sketch};
};

}

class SnapperTest final : public QObject
{
    Q_OBJECT

private slots:
    void hiddenEntitiesGiveNoPoints_data()
    {
        QTest::addColumn<bool>("isVisible");
        QTest::addColumn<bool>("isLocked");
        QTest::addColumn<bool>("isCaught");

        QTest::newRow("visible") << true << false << true;
        QTest::newRow("locked") << true << true << true;
        QTest::newRow("hidden") << false << false << false;
    }

    void hiddenEntitiesGiveNoPoints()
    {
        QFETCH(bool, isVisible);
        QFETCH(bool, isLocked);
        Fixture f;
        const int layer = f.sketch.AddLayer(L"walls");
        f.sketch.SetCurrentPen(&Pen::layer, layer);
        f.sketch.Add(CircleShape{{-100, 0, 0}, 30});
        f.sketch.AddLine({-60, 60, 0}, {-60, 90, 0});
        Layer changed = *f.sketch.FindLayer(layer);
        changed.isVisible = isVisible;
        changed.isLocked = isLocked;
        f.sketch.SetLayer(changed);

        f.snapper.SetOn(Snapper::Centre, true);
        QTEST(f.Catch(-101, 0) == Vector3d(-100, 0, 0), "isCaught");
        f.snapper.SetOn(Snapper::End, true);
        QTEST(f.Catch(-61, 60) == Vector3d(-60, 60, 0), "isCaught");
    }

    void onlyEndsAreOnAtFirst()
    {
        const Sketch sketch;
        const Snapper snapper(sketch);

        QVERIFY(snapper.IsOn(Snapper::End));
        QVERIFY(!snapper.IsOn(Snapper::Middle));
        QVERIFY(!snapper.IsOn(Snapper::Centre));
        QVERIFY(!snapper.IsOn(Snapper::Intersection));
        QVERIFY(!snapper.IsOn(Snapper::Grid));
    }

    void eachSnapCatchesItsPoint_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<Vector3d>("cursor");
        QTest::addColumn<Vector3d>("caught");

        QTest::newRow("start") << int(Snapper::End) << Vector3d(-3, 4, 0) << Vector3d(0, 0, 0);
        QTest::newRow("end") << int(Snapper::End) << Vector3d(100, -9.9, 0) << Vector3d(100, 0, 0);
        QTest::newRow("middle") << int(Snapper::Middle) << Vector3d(52, 3, 0) << Vector3d(50, 0, 0);
        QTest::newRow("intersection")
            << int(Snapper::Intersection) << Vector3d(84, 5, 0) << Vector3d(80, 0, 0);
        QTest::newRow("grid") << int(Snapper::Grid) << Vector3d(-46, 58, 0) << Vector3d(-50, 60, 0);
    }

    void eachSnapCatchesItsPoint()
    {
        QFETCH(int, kind);
        QFETCH(Vector3d, cursor);
        QFETCH(Vector3d, caught);
        Fixture f;
        QCOMPARE(f.Catch(cursor.x(), cursor.y()), cursor);

        f.snapper.SetOn(static_cast<Snapper::Kind>(kind), true);

        QCOMPARE(f.Catch(cursor.x(), cursor.y()), caught);
        QCOMPARE(int(f.snapper.GetCaught()->kind), kind);
        QCOMPARE(f.snapper.GetCaught()->point, caught);
    }

    void whatIsJustTenPixelsAwayIsCaught_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<Vector3d>("cursor");
        QTest::addColumn<Vector3d>("caught");

        QTest::newRow("end") << int(Snapper::End) << Vector3d(110, 0, 0) << Vector3d(100, 0, 0);
        QTest::newRow("middle") << int(Snapper::Middle) << Vector3d(60, 0, 0) << Vector3d(50, 0, 0);
        QTest::newRow("middle, from beside")
            << int(Snapper::Middle) << Vector3d(50, 10, 0) << Vector3d(50, 0, 0);
        QTest::newRow("centre") << int(Snapper::Centre) << Vector3d(-200, 210, 0)
                                << Vector3d(-200, 200, 0);
        QTest::newRow("intersection")
            << int(Snapper::Intersection) << Vector3d(90, 0, 0) << Vector3d(80, 0, 0);
    }

    void whatIsJustTenPixelsAwayIsCaught()
    {
        QFETCH(int, kind);
        QFETCH(Vector3d, cursor);
        QFETCH(Vector3d, caught);
        Fixture f;
        f.sketch.Add(CircleShape{{-200, 200, 0}, 50});
        f.snapper.SetOn(static_cast<Snapper::Kind>(kind), true);

        QCOMPARE(f.Catch(cursor.x(), cursor.y()), caught);
        QCOMPARE(int(f.snapper.GetCaught()->kind), kind);
    }

    void whatIsFurtherThanTenPixelsIsNotCaught_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<Vector3d>("cursor");

        QTest::newRow("end") << int(Snapper::End) << Vector3d(0, 10.1, 0);
        QTest::newRow("end, along its line") << int(Snapper::End) << Vector3d(10.1, 0, 0);
        QTest::newRow("middle") << int(Snapper::Middle) << Vector3d(50, 10.1, 0);
        QTest::newRow("middle, along its line") << int(Snapper::Middle) << Vector3d(60.1, 0, 0);
        QTest::newRow("centre") << int(Snapper::Centre) << Vector3d(-200, 210.1, 0);
        QTest::newRow("intersection") << int(Snapper::Intersection) << Vector3d(90.1, 0, 0);
        QTest::newRow("intersection, between the lines")
            << int(Snapper::Intersection) << Vector3d(88, 8, 0);
    }

    void whatIsFurtherThanTenPixelsIsNotCaught()
    {
        QFETCH(int, kind);
        QFETCH(Vector3d, cursor);
        Fixture f;
        f.sketch.Add(CircleShape{{-200, 200, 0}, 50});
        f.snapper.SetOn(static_cast<Snapper::Kind>(kind), true);

        QCOMPARE(f.Catch(cursor.x(), cursor.y()), cursor);
        QVERIFY(!f.snapper.GetCaught().has_value());
    }

    void aGridPointBeyondTenPixelsIsNotCaught()
    {
        Fixture f;
        f.snapper.SetOn(Snapper::Grid, true);
        f.view.GetCamera().SetWorldPerPixel(1.26);

        // The grid spacing is 20, the reach is 12.6.
        QCOMPARE(f.Catch(-109.2, 109.2), Vector3d(-109.2, 109.2, 0));
        QCOMPARE(f.Catch(-108.8, 108.8), Vector3d(-100, 100, 0));
    }

    void theGridIsCaughtWhereNoEndIs()
    {
        Fixture f;
        f.snapper.SetOn(Snapper::End, true);
        f.snapper.SetOn(Snapper::Grid, true);

        QCOMPARE(f.Catch(-46, 58), Vector3d(-50, 60, 0));
        QCOMPARE(int(f.snapper.GetCaught()->kind), int(Snapper::Grid));
    }

    void ofEqualIntersectionsTheOneDrawnLastIsCaught()
    {
        Fixture f;
        f.snapper.SetOn(Snapper::Intersection, true);
        f.sketch.AddLine({35, -50, 0}, {35, 50, 0});
        f.sketch.AddLine({45, -50, 0}, {45, 50, 0});

        QCOMPARE(f.Catch(40, 0), Vector3d(45, 0, 0));
    }

    void anIntersectionLiesOnTheNearerLineToTheLastBit()
    {
        Fixture f;
        f.sketch.AddLine({33, -7, 0}, {41, 5, 0});
        f.snapper.SetOn(Snapper::Intersection, true);

        const Vector3d caught = f.Catch(38, 0.1);

        QVERIFY(f.snapper.GetCaught().has_value());
        QCOMPARE_EXACTLY(caught.y(), 0.0);
    }

    void eachKindIsOneOfThem() { QCOMPARE(Snapper::KindCount, int(Snapper::Grid) + 1); }

    void whereMiddlesCrossTheCrossingIsCaught()
    {
        Fixture f;
        f.sketch.AddLine({50, -20, 0}, {50, 20, 0});
        f.snapper.SetOn(Snapper::Middle, true);
        f.snapper.SetOn(Snapper::Intersection, true);

        QCOMPARE(f.Catch(50, 3), Vector3d(50, 0, 0));
        QCOMPARE(int(f.snapper.GetCaught()->kind), int(Snapper::Intersection));
    }

    void tenPixelsAreTenAtEveryScale()
    {
        Fixture f;
        f.snapper.SetOn(Snapper::End, true);
        f.view.GetCamera().SetWorldPerPixel(0.1);

        QCOMPARE(f.Catch(0, 0.9), Vector3d(0, 0, 0));
        QCOMPARE(f.Catch(0, 1.1), Vector3d(0, 1.1, 0));
    }

    void anEndComesBeforeAllOthers()
    {
        Fixture f;
        f.sketch.AddLine({80, 6, 0}, {200, 200, 0});
        for (int kind = 0; kind < Snapper::KindCount; ++kind)
            f.snapper.SetOn(static_cast<Snapper::Kind>(kind), true);

        // The intersection at (80, 0) is nearer.
        QCOMPARE(f.Catch(80, 1), Vector3d(80, 6, 0));
    }

    void theNearestOfSeveralEndsWins()
    {
        Fixture f;
        f.sketch.AddLine({4, 0, 0}, {4, 100, 0});
        f.snapper.SetOn(Snapper::End, true);

        QCOMPARE(f.Catch(3, 0), Vector3d(4, 0, 0));
        QCOMPARE(f.Catch(1, 0), Vector3d(0, 0, 0));
    }

    void betweenTheOthersTheNearestWins()
    {
        Fixture f;
        f.snapper.SetOn(Snapper::Middle, true);
        f.snapper.SetOn(Snapper::Intersection, true);
        f.sketch.AddLine({45, -50, 0}, {45, 60, 0});

        QCOMPARE(f.Catch(46, 0), Vector3d(45, 0, 0));
        QCOMPARE(f.Catch(49, 0), Vector3d(50, 0, 0));
    }

    void theGridComesLast()
    {
        Fixture f;
        f.snapper.SetOn(Snapper::Middle, true);
        f.snapper.SetOn(Snapper::Grid, true);

        // The grid point (60, 0) is nearer than the midpoint at (50, 0).
        QCOMPARE(f.Catch(56, 0), Vector3d(50, 0, 0));
    }

    void theCentreOfALargeCircleIsCaught()
    {
        Fixture f;
        f.sketch.Add(CircleShape{{-50, 60, 0}, 40, {0, 0, 1}});
        QCOMPARE(f.Catch(-46, 57), Vector3d(-46, 57, 0));

        f.snapper.SetOn(Snapper::Centre, true);

        QCOMPARE(f.Catch(-46, 57), Vector3d(-50, 60, 0));
        QCOMPARE(int(f.snapper.GetCaught()->kind), int(Snapper::Centre));
    }

    void roundAndStraightPiecesIntersect()
    {
        Fixture f;
        f.sketch.Add(CircleShape{{-60, 0, 0}, 100, {0, 0, 1}});
        f.sketch.Add(CircleShape{{60, 0, 0}, 100, {0, 0, 1}});
        f.snapper.SetOn(Snapper::Intersection, true);

        QVERIFY((f.Catch(43, 3) - Vector3d(40, 0, 0)).norm() < 1e-9);
        QVERIFY((f.Catch(2, 77) - Vector3d(0, 80, 0)).norm() < 1e-9);
    }

    void theSidesOfARectangleIntersectOthersOnly()
    {
        Fixture f;
        f.sketch.Add(RectangleShape{{Vector3d(20, -20, 0), Vector3d(60, -20, 0),
                                     Vector3d(60, 20, 0), Vector3d(20, 20, 0)}});
        f.snapper.SetOn(Snapper::Intersection, true);

        QCOMPARE(f.Catch(22, 3), Vector3d(20, 0, 0));
        QCOMPARE(f.Catch(22, 19), Vector3d(22, 19, 0));
    }

    void ofManyIntersectionsTheNearestIsCaught()
    {
        Fixture f;
        f.snapper.SetOn(Snapper::Intersection, true);
        for (int i = 0; i < 5; ++i)
        {
            f.sketch.AddLine({-100.0 + 3 * i, -50, 0}, {-100.0 + 3 * i, 50, 0});
            f.sketch.AddLine({-150, 3.0 * i, 0}, {-50, 3.0 * i, 0});
        }

        QVERIFY((f.Catch(-96.4, 6.4) - Vector3d(-97, 6, 0)).norm() < 1e-9);
        QVERIFY((f.Catch(-88.9, 11.2) - Vector3d(-88, 12, 0)).norm() < 1e-9);
    }

    void segmentsThatOnlyWouldMeetHaveNoIntersection()
    {
        Fixture f;
        f.sketch.AddLine({30, 5, 0}, {30, 50, 0});
        f.snapper.SetOn(Snapper::Intersection, true);

        QCOMPARE(f.Catch(30, 2), Vector3d(30, 2, 0));
    }

    void parallelSegmentsHaveNoIntersection()
    {
        Fixture f;
        f.sketch.AddLine({20, 0, 0}, {60, 0, 0});
        f.snapper.SetOn(Snapper::Intersection, true);

        QCOMPARE(f.Catch(40, 1), Vector3d(40, 1, 0));
    }

    void whatWasCaughtIsForgotten()
    {
        Fixture f;
        f.snapper.SetOn(Snapper::End, true);
        f.Catch(0, 1);

        f.snapper.Release();

        QVERIFY(!f.snapper.GetCaught().has_value());
    }

    void withoutAViewNothingIsCaught()
    {
        Fixture f;
        f.snapper.SetOn(Snapper::End, true);
        f.Catch(0, 1);

        QCOMPARE(f.snapper.Catch({0, 1, 0}, nullptr), Vector3d(0, 1, 0));
        QVERIFY(!f.snapper.GetCaught().has_value());

        // Not even the end that the cursor is on.
        f.snapper.Catch({0, 0, 0}, nullptr);
        QVERIFY(!f.snapper.GetCaught().has_value());
    }

    void theGridHasRoundStepsOfEightPixelsAtLeast_data()
    {
        QTest::addColumn<double>("worldPerPixel");
        QTest::addColumn<double>("step");

        QTest::newRow("one to one") << 1.0 << 10.0;
        QTest::newRow("just ten") << 1.25 << 10.0;
        QTest::newRow("twenty") << 1.26 << 20.0;
        QTest::newRow("fifty") << 3.0 << 50.0;
        QTest::newRow("hundred") << 7.0 << 100.0;
        QTest::newRow("near") << 0.001 << 0.01;
    }

    void theGridHasRoundStepsOfEightPixelsAtLeast()
    {
        QFETCH(double, worldPerPixel);
        QFETCH(double, step);

        QCOMPARE(GridStep(worldPerPixel), step);
    }
};

VESK_TESTS(SnapperTest);
#include "SnapperTest.moc"
