#include "Tools/RectangleAction.h"

#include "Tools/ActionFixture.h"

#include "Dimension/LengthUnit.h"
#include "Dimension/RectangleTemporaryDimensionContext.h"
#include "ShapeValues.h"

using namespace vesk;
using Fixture = ActionFixture<RectangleAction>;
using Corners = std::array<Vector3d, 4>;

class RectangleActionTest final : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { LengthUnit::SetCurrent(LengthUnit::Millimetre()); }

    void twoCornersMakeARectangle()
    {
        Fixture f;
        f.Begin();

        f.ClickAt(10, 20);
        f.ClickAt(-30, 70);

        QCOMPARE(f.Drawn<RectangleShape>().corners,
                 (Corners{Vector3d(10, 20, 0), Vector3d(-30, 20, 0), Vector3d(-30, 70, 0),
                          Vector3d(10, 70, 0)}));
        QVERIFY(f.IsRepeated());
    }

    void oneRectangleFollowsTheOther()
    {
        Fixture f;
        f.Begin();
        const std::wstring first = f.action.GetViewText();

        f.ClickAt(0, 0);
        QVERIFY(f.action.GetViewText() != first);
        f.ClickAt(10, 10);
        QCOMPARE(f.action.GetViewText(), first);
        f.ClickAt(50, 50);
        f.ClickAt(60, 70);

        QCOMPARE(f.Count(), std::size_t{2});
        QVERIFY(!f.action.IsFinished());
        QVERIFY(f.IsRepeated());
    }

    void pointGivenByItsCoordinatesIsUsedAsItIs()
    {
        Fixture f;
        f.workspace.snapper.SetOn(Snapper::Grid, true);
        f.Begin();
        f.MoveTo(-500, -300);

        QVERIFY(f.action.OnPoint({10.25, 20.5, 0}));
        QVERIFY(f.action.OnPoint({-30.75, 70, 0}));

        QCOMPARE(f.Drawn<RectangleShape>().corners,
                 (Corners{Vector3d(10.25, 20.5, 0), Vector3d(-30.75, 20.5, 0),
                          Vector3d(-30.75, 70, 0), Vector3d(10.25, 70, 0)}));
        QVERIFY(f.IsRepeated());
    }

    void sizesTypedAfterItGoRightAndUpWhereverTheMouseIs()
    {
        Fixture f;
        f.Begin();
        f.MoveTo(-500, -300);
        f.action.OnPoint({10, 20, 0});

        f.Type(ActionViewInput::WidthEntered, 120);
        f.Type(ActionViewInput::HeightCommitted, 80);

        QCOMPARE(f.Drawn<RectangleShape>().corners,
                 (Corners{Vector3d(10, 20, 0), Vector3d(130, 20, 0), Vector3d(130, 100, 0),
                          Vector3d(10, 100, 0)}));
        QVERIFY(f.IsRepeated());
    }

    void pointIsNotTakenWhileAValueIsLocked()
    {
        Fixture f;
        f.Begin();
        f.ClickAt(10, 20);
        QVERIFY(f.action.TakesPoint());

        f.Type(ActionViewInput::WidthEntered, 120);

        QVERIFY(!f.action.TakesPoint());
    }

    void pointThatCannotBeUsedChangesNothing()
    {
        Fixture f;
        f.Begin();
        f.ClickAt(10, 20);
        f.MoveTo(60, 70);
        const std::size_t records = f.records.size();

        QVERIFY(!f.action.OnPoint({10, 50, 0}));

        QCOMPARE(f.Count(), std::size_t{0});
        QCOMPARE(f.records.size(), records);
        f.Type(ActionViewInput::WidthCommitted, 5);
        QCOMPARE(f.Drawn<RectangleShape>().corners[2], Vector3d(15, 70, 0));
    }

    void typedSizesGoIntoTheQuadrantOfTheCursor_data()
    {
        QTest::addColumn<double>("cursorX");
        QTest::addColumn<double>("cursorY");
        QTest::addColumn<double>("x");
        QTest::addColumn<double>("y");

        QTest::newRow("right up") << 50.0 << 60.0 << 43.5 << 33.25;
        QTest::newRow("left up") << -50.0 << 60.0 << -23.5 << 33.25;
        QTest::newRow("left down") << -50.0 << -60.0 << -23.5 << 6.75;
        QTest::newRow("right down") << 50.0 << -60.0 << 43.5 << 6.75;
        QTest::newRow("at rest") << 10.0 << 20.0 << 43.5 << 33.25;
    }

    void typedSizesGoIntoTheQuadrantOfTheCursor()
    {
        QFETCH(double, cursorX);
        QFETCH(double, cursorY);
        QFETCH(double, x);
        QFETCH(double, y);
        Fixture f;
        f.Begin();
        f.ClickAt(10, 20);
        f.MoveTo(cursorX, cursorY);

        f.Type(ActionViewInput::WidthEntered, 33.5);
        f.Type(ActionViewInput::HeightCommitted, 13.25);

        QCOMPARE(f.Drawn<RectangleShape>().corners[2], Vector3d(x, y, 0));
        QCOMPARE(RecordCount<ValueRecord>(f), 2);
        QVERIFY(f.IsRepeated());
    }

    void aSizeTakenWithTabHoldsWhileTheCursorMoves()
    {
        Fixture f;
        f.Begin();
        f.ClickAt(0, 0);

        f.Type(ActionViewInput::WidthEntered, 33.5);
        f.MoveTo(-90, 17);
        QVERIFY(TemporaryDimensionMgr::GetInstance()->IsLocked(InputState::IS_Width));
        QCOMPARE(Opposite(f), Vector3d(-33.5, 17, 0));
        f.ClickAt(90, -18);

        QCOMPARE(f.Drawn<RectangleShape>().corners[2], Vector3d(33.5, -18, 0));
        QVERIFY(!TemporaryDimensionMgr::GetInstance()->IsLocked(InputState::IS_Width));
        QVERIFY(f.IsRepeated());
    }

    void escapeDropsTheSizesFirst()
    {
        Fixture f;
        f.Begin();
        f.ClickAt(0, 0);
        f.Type(ActionViewInput::WidthEntered, 33.5);

        QVERIFY(f.action.OnEscape());
        QVERIFY(!f.action.OnEscape());
        f.ClickAt(7, 8);

        QCOMPARE(f.Drawn<RectangleShape>().corners[2], Vector3d(7, 8, 0));
        QVERIFY(f.IsRepeated());
    }

    void aSizeMayBeTypedBeforeTheOther()
    {
        Fixture f;
        f.Begin();
        f.ClickAt(0, 0);

        f.Type(ActionViewInput::WidthCommitted, 33.5);
        QCOMPARE(f.Count(), std::size_t{0});
        f.Type(ActionViewInput::HeightCommitted, 5.0);

        QCOMPARE(f.Drawn<RectangleShape>().corners[2], Vector3d(33.5, 5, 0));
        QVERIFY(f.IsRepeated());
    }

    void oneTypedSizeIsEnoughWhereTheCursorGivesTheOther()
    {
        Fixture f;
        f.Begin();
        f.ClickAt(0, 0);
        f.MoveTo(-20, 11);

        f.Type(ActionViewInput::WidthCommitted, 33.5);

        QCOMPARE(f.Drawn<RectangleShape>().corners[2], Vector3d(-33.5, 11, 0));
        QVERIFY(f.IsRepeated());
    }

    void sizesAreTypedInTheUnitShown()
    {
        LengthUnit::SetCurrent(LengthUnit::Inch());
        Fixture f;
        f.Begin();
        f.ClickAt(0, 0);

        f.Type(ActionViewInput::WidthEntered, 2.0);
        f.Type(ActionViewInput::HeightCommitted, 1.0);

        QCOMPARE(f.Drawn<RectangleShape>().corners[2], Vector3d(50.8, 25.4, 0));
        QVERIFY(f.IsRepeated());
    }

    void aSizeIsRefusedWhereTheCursorCannotHelp()
    {
        Fixture f;
        f.Begin();
        f.ClickAt(0, 0);
        f.MoveTo(70, 50);

        QVERIFY(f.action.GetRefusal(InputState::IS_Width, 1e10).empty());
        f.Type(ActionViewInput::HeightEntered, 30);

        QVERIFY(!f.action.GetRefusal(InputState::IS_Width, 1e10).empty());
        QVERIFY(f.action.GetRefusal(InputState::IS_Width, 20).empty());
        QVERIFY(f.action.GetRefusal(InputState::IS_Height, 30).empty());
        QVERIFY(f.action.GetRefusal(InputState::IS_Radius, 0).empty());
        QVERIFY(!TemporaryDimensionMgr::GetInstance()->IsLocked(InputState::IS_Width));
    }

    void aSizeThatIsOnlyConfirmedIsNotRounded()
    {
        Fixture f;
        f.Begin();
        f.ClickAt(0, 0);
        f.MoveTo(100.0 / 3.0, -200.0 / 7.0);

        f.Type(ActionViewInput::WidthEntered, 33.333, true);
        f.Type(ActionViewInput::HeightCommitted, 28.571, true);

        QCOMPARE(f.Drawn<RectangleShape>().corners[2], Vector3d(100.0 / 3.0, -200.0 / 7.0, 0));
        QVERIFY(f.IsRepeated());
    }

    void whatHasNoSizeIsNotDrawn()
    {
        Fixture f;
        f.Begin();
        f.ClickAt(10, 20);

        f.ClickAt(10, 20);
        f.ClickAt(50, 20);
        f.ClickAt(10, 60);
        QCOMPARE(f.Count(), std::size_t{0});
        f.ClickAt(11, 21);

        QCOMPARE(f.Count(), std::size_t{1});
        QCOMPARE(RecordCount<PointRecord>(f), 2);
    }

    void aValueAloneIsRepeated()
    {
        Fixture f;
        f.Begin();
        f.ClickAt(0, 0);

        f.Type(ActionViewInput::WidthEntered, 33.5);

        QCOMPARE(RecordCount<ValueRecord>(f), 1);
        QVERIFY(f.IsRepeated());
    }

    void whatIsNotAskedForIsNotTaken()
    {
        Fixture f;
        f.Begin();
        f.Type(ActionViewInput::WidthEntered, 33.5);
        f.ClickAt(0, 0);
        f.MoveTo(20, 30);

        f.Type(ActionViewInput::LengthEntered, 33.5);
        f.Type(ActionViewInput::RadiusCommitted, 33.5);

        QVERIFY(!f.action.OnEscape());
        QCOMPARE(f.Count(), std::size_t{0});
        QCOMPARE(f.records.size(), std::size_t{1});
    }

    void atRestTheOtherCornerIsAPixelAway()
    {
        Fixture f;
        f.Begin();
        QVERIFY(f.Offered<RectangleTemporaryDimensionContext>() == nullptr);

        f.ClickAt(10, 20);

        QCOMPARE(Opposite(f), Vector3d(11, 20, 0));
    }

    void aCornerIsCaught()
    {
        Fixture f;
        f.view.GetCamera().SetSize(400, 300);
        f.workspace.sketch.AddLine({100, 50, 0}, {150, 50, 0});
        f.Begin();

        f.ClickAt(0, 0);
        f.ClickAt(96, 53);

        QCOMPARE(f.Drawn<RectangleShape>().corners[2], Vector3d(100, 50, 0));
    }

private:
    template <class Record>
    static int RecordCount(const Fixture& f)
    {
        int count = 0;
        for (const JournalRecord& record : f.records)
            count += std::holds_alternative<Record>(record.what) ? 1 : 0;
        return count;
    }

    static Vector3d Opposite(const Fixture& f)
    {
        return f.Offered<RectangleTemporaryDimensionContext>()->GetOppositeCorner();
    }
};

VESK_TESTS(RectangleActionTest);
#include "RectangleActionTest.moc"
