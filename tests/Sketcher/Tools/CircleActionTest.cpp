#include "Tools/CircleAction.h"

#include "Tools/ActionFixture.h"
#include "Tools/ArcConstruction.h"

#include "Dimension/LengthUnit.h"
#include "Dimension/RadiusTemporaryDimensionContext.h"
#include "ShapeValues.h"

#include <cmath>

using namespace vesk;
using Fixture = ActionFixture<CircleAction>;

class CircleActionTest final : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { LengthUnit::SetCurrent(LengthUnit::Millimetre()); }

    void centreAndPointMakeACircle()
    {
        Fixture f;
        f.Begin();

        f.ClickAt(10, 20);
        f.ClickAt(13, 24);

        QCOMPARE(f.Drawn<CircleShape>(), (CircleShape{{10, 20, 0}, 5, {0, 0, 1}}));
        QVERIFY(f.IsRepeated());
    }

    void aClickedRadiusIsRepeatedToTheLastBit()
    {
        Fixture f;

        f.DrawFiftyCrookedShapes(2);

        QCOMPARE(f.Count(), std::size_t{50});
        QVERIFY(f.IsRepeated());
    }

    void aTypedRadiusIsStoredAsItIs_data()
    {
        QTest::addColumn<double>("radius");

        QTest::newRow("simple") << 25.0;
        QTest::newRow("tenth") << 0.1;
        QTest::newRow("least") << 1e-6;
        QTest::newRow("greatest") << 1e9;
        QTest::newRow("third") << 1.0 / 3.0;
    }

    void aTypedRadiusIsStoredAsItIs()
    {
        QFETCH(double, radius);
        Fixture f;
        f.Begin();
        f.ClickAt(1000.1, -33.3);
        f.MoveTo(700.7, 99);

        f.Type(ActionViewInput::RadiusCommitted, radius);

        QCOMPARE(f.Drawn<CircleShape>().radius, radius);
        QCOMPARE(f.Drawn<CircleShape>().centre, Vector3d(1000.1, -33.3, 0));
        QVERIFY(f.IsRepeated());
    }

    void aRadiusIsTypedInTheUnitShown()
    {
        LengthUnit::SetCurrent(LengthUnit::Centimetre());
        Fixture f;
        f.Begin();
        f.ClickAt(0, 0);

        f.Type(ActionViewInput::RadiusWithAngleCommitted, 2.5);

        QCOMPARE(f.Drawn<CircleShape>().radius, 25.0);
        QVERIFY(f.IsRepeated());
    }

    void aTypedTextStandsForTheModelsValue()
    {
        LengthUnit::SetCurrent(LengthUnit::Inch());
        Fixture f;
        f.Begin();
        f.ClickAt(0, 0);

        f.TypeText(ActionViewInput::RadiusCommitted, L"1.2", 1.2, 30.48);

        // Converted from inches it would be 30.479999999999997.
        QVERIFY(f.Drawn<CircleShape>().radius == 30.48);
        QVERIFY(std::get<ValueRecord>(f.records[1].what).value == 30.48);
        QVERIFY(f.IsRepeated());
    }

    void aRadiusThatIsOnlyConfirmedIsNotRounded()
    {
        Fixture f;
        f.Begin();
        f.ClickAt(0, 0);
        f.MoveTo(100.0 / 3.0, 0);

        f.Type(ActionViewInput::RadiusCommitted, 33.333, true);

        QCOMPARE(f.Drawn<CircleShape>().radius, 100.0 / 3.0);
        QVERIFY(f.IsRepeated());
    }

    void aRadiusConfirmedAfterTheMouseHasMovedIsTheOneThatWasShown()
    {
        Fixture f;
        f.Begin();
        f.ClickAt(0, 0);
        f.MoveTo(100.0 / 3.0, 0);
        f.MoveTo(50, 0);

        f.Type(ActionViewInput::RadiusCommitted, 33.333, true);

        QCOMPARE_EXACTLY(f.Drawn<CircleShape>().radius, 33.333);
        QVERIFY(f.IsRepeated());
    }

    void aRadiusConfirmedInInchesIsNotRounded()
    {
        LengthUnit::SetCurrent(LengthUnit::Inch());
        Fixture f;
        f.Begin();
        f.ClickAt(0, 0);
        f.MoveTo(100.0 / 3.0, 0);

        f.Type(ActionViewInput::RadiusCommitted, 1.312, true);

        LengthUnit::SetCurrent(LengthUnit::Millimetre());
        QCOMPARE_EXACTLY(f.Drawn<CircleShape>().radius, 100.0 / 3.0);
    }

    void theStepIsRecordedWithValueAndPoint()
    {
        Fixture f;
        f.Begin();
        f.ClickAt(1, 2);
        f.MoveTo(1, 50);

        f.Type(ActionViewInput::RadiusCommitted, 10);

        QCOMPARE(f.records.size(), std::size_t{3});
        QCOMPARE(std::get<ValueRecord>(f.records[1].what).value, 10.0);
        QCOMPARE(std::get<ValueRecord>(f.records[1].what).field, InputState::IS_Radius);
        QCOMPARE(std::get<PointRecord>(f.records[2].what).point, Vector3d(1, 12, 0));
    }

    void aRadiusThatCannotBeIsForgotten()
    {
        Fixture f;
        f.Begin();
        f.ClickAt(0, 0);

        f.Type(ActionViewInput::RadiusCommitted, 0.0);
        QVERIFY(!TemporaryDimensionMgr::GetInstance()->IsLocked(InputState::IS_Radius));
        f.ClickAt(3, 4);

        QCOMPARE(f.Drawn<CircleShape>().radius, 5.0);
        QCOMPARE(f.records.size(), std::size_t{2});
        QVERIFY(f.IsRepeated());
    }

    void theThreePointsOfferedLieOnTheCircle()
    {
        Fixture f;
        f.Begin();
        QVERIFY(f.Offered<RadiusTemporaryDimensionContext>() == nullptr);
        f.ClickAt(10, 20);

        f.MoveTo(13, 24);

        const auto opContext = f.Offered<RadiusTemporaryDimensionContext>();
        QVERIFY(!opContext->IsCentralAngleShown());
        QCOMPARE(opContext->GetThirdPoint(), Vector3d(13, 24, 0));
        const std::optional<ArcShape> arc = ArcThrough(
            opContext->GetFirstPoint(), opContext->GetSecondPoint(), opContext->GetThirdPoint());
        QVERIFY((arc->centre - Vector3d(10, 20, 0)).norm() < 1e-12);
        QVERIFY(std::abs(arc->radius - 5) < 1e-12);
    }

    void atRestTheCircleIsAPixelWide()
    {
        Fixture f;
        f.Begin();

        f.ClickAt(10, 20);
        f.ClickAt(10, 20);

        QCOMPARE(f.Count(), std::size_t{0});
        QCOMPARE(f.Offered<RadiusTemporaryDimensionContext>()->GetThirdPoint(),
                 Vector3d(11, 20, 0));
    }
};

VESK_TESTS(CircleActionTest);
#include "CircleActionTest.moc"
