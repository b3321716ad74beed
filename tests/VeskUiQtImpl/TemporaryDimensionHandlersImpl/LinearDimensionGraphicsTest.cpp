#include "TemporaryDimensionHandlersImpl/HandlerFixture.h"

#include "Support/HostValues.h"
#include "Support/TestValues.h"

namespace vesk::test
{

class LinearDimensionGraphicsTest : public QObject
{
    Q_OBJECT

private slots:
    void showsWhatTheContextEnables_data();
    void showsWhatTheContextEnables();
    void fillsInValuesAndTextPositions();
    void coincidingPointsHaveNoDimensions_data();
    void coincidingPointsHaveNoDimensions();
    void coincidingPointsNeedNoView();
    void whatIsNotDrawnKeepsItsValue_data();
    void whatIsNotDrawnKeepsItsValue();
    void configurationOfAForeignContextIsReported();
    void configurationOfAForeignContextTakesItsRangesAndNoFlags();
    void configurationTakesTheFlagsOver();
    void failedConfigurationChangesNoFlags();
};

void LinearDimensionGraphicsTest::showsWhatTheContextEnables_data()
{
    QTest::addColumn<bool>("hasLength");
    QTest::addColumn<bool>("hasAngle");
    QTest::addColumn<int>("count");
    QTest::newRow("both") << true << true << 2;
    QTest::newRow("length") << true << false << 1;
    QTest::newRow("angle") << false << true << 1;
    QTest::newRow("neither") << false << false << 0;
}

void LinearDimensionGraphicsTest::showsWhatTheContextEnables()
{
    QFETCH(bool, hasLength);
    QFETCH(bool, hasAngle);
    QFETCH(int, count);
    HandlerFixture f(hasLength, hasAngle);
    f.Data() = TemporaryDimensionData();

    const auto opGroup = f.opHandler->GenerateGraphics(&f.context);

    QCOMPARE(opGroup->GetChildCount(), count);
    QCOMPARE(f.Data()[InputState::IS_Length].value, hasLength ? 50.0 : 0.0);
    QCOMPARE(f.Data()[InputState::IS_Angle].value != 0.0, hasAngle);
}

void LinearDimensionGraphicsTest::fillsInValuesAndTextPositions()
{
    HandlerFixture f;

    QCOMPARE(f.Data()[InputState::IS_Length].value, 50.0);
    QVERIFY(qAbs(f.Data()[InputState::IS_Angle].value - 53.1301) < 1e-4);
    QVERIFY(f.Data()[InputState::IS_Length].textPosition != Vector3d(0, 0, 0));
    QVERIFY(f.Data()[InputState::IS_Angle].textPosition != Vector3d(0, 0, 0));
}

void LinearDimensionGraphicsTest::coincidingPointsHaveNoDimensions_data()
{
    QTest::addColumn<double>("distance");
    QTest::addColumn<int>("count");
    QTest::newRow("equal") << 0.0 << 0;
    QTest::newRow("within the tolerance") << 0.9e-9 << 0;
    QTest::newRow("beyond the tolerance") << 1.1e-9 << 2;
}

void LinearDimensionGraphicsTest::coincidingPointsHaveNoDimensions()
{
    QFETCH(double, distance);
    QFETCH(int, count);
    HandlerFixture f;
    const LinearTemporaryDimensionContext context(Coordinate3d(), Vector3d(0, 0, 0),
                                                  Vector3d(distance, 0, 0));

    const auto opGroup = f.opHandler->GenerateGraphics(&context);

    QVERIFY(opGroup != nullptr);
    QVERIFY(!opGroup->IsPickable());
    QCOMPARE(opGroup->GetChildCount(), count);
}

void LinearDimensionGraphicsTest::coincidingPointsNeedNoView()
{
    HandlerFixture f;
    f.host.core.GetViewManager().RemoveView(&f.host.view);
    const LinearTemporaryDimensionContext context(Coordinate3d(), Vector3d(1, 1, 0),
                                                  Vector3d(1, 1, 0));

    QVERIFY(f.opHandler->GenerateGraphics(&context) != nullptr);
}

void LinearDimensionGraphicsTest::whatIsNotDrawnKeepsItsValue_data()
{
    QTest::addColumn<double>("length");
    QTest::newRow("no angle") << 50.0;
    QTest::newRow("no length either") << 0.0;
}

void LinearDimensionGraphicsTest::whatIsNotDrawnKeepsItsValue()
{
    QFETCH(double, length);
    HandlerFixture f(true, false);
    f.Data()[InputState::IS_Angle].value = 33;
    const LinearTemporaryDimensionContext context(Coordinate3d(), Vector3d(0, 0, 0),
                                                  Vector3d(length, 0, 0));

    f.opHandler->GenerateGraphics(&context);

    QCOMPARE_EXACTLY(f.Data()[InputState::IS_Angle].value, 33);
    QCOMPARE_EXACTLY(f.Data()[InputState::IS_Length].value, 50);
}

void LinearDimensionGraphicsTest::configurationOfAForeignContextIsReported()
{
    HandlerFixture f;
    const ForeignContext context;

    QVERIFY(!f.opHandler->UpdateConfig(&context));

    EXPECT_WARNING(f.host.warnings, L"pLinearCtx为空。", std::string(LinearClass) + "UpdateConfig");
}

void LinearDimensionGraphicsTest::configurationOfAForeignContextTakesItsRangesAndNoFlags()
{
    HandlerFixture f(true, false);
    const ForeignContext context;
    f.host.BeginAction();

    f.opHandler->UpdateConfig(&context);

    f.host.warnings.TakeAny();
    QCOMPARE(f.opHandler->GenerateGraphics(&f.context)->GetChildCount(), 1);
    f.TypeLength("1.5");
    f.opHandler->OnEditorReturnPressed();
    QVERIFY(f.Inputs().empty());
    f.Editor()->setText("1");
    f.opHandler->OnEditorReturnPressed();
    QCOMPARE(f.Inputs().size(), std::size_t(1));
}

void LinearDimensionGraphicsTest::configurationTakesTheFlagsOver()
{
    HandlerFixture f(true, false);
    QCOMPARE(f.opHandler->GenerateGraphics(&f.context)->GetChildCount(), 1);
    f.context.SetAngleEnabled(true);
    QCOMPARE(f.opHandler->GenerateGraphics(&f.context)->GetChildCount(), 1);

    QVERIFY(f.opHandler->UpdateConfig(&f.context));

    QCOMPARE(f.opHandler->GenerateGraphics(&f.context)->GetChildCount(), 2);
}

void LinearDimensionGraphicsTest::failedConfigurationChangesNoFlags()
{
    HandlerFixture f;

    QVERIFY(!f.opHandler->UpdateConfig(nullptr));

    EXPECT_WARNING(f.host.warnings, L"pCtx为空。", std::string(BaseClass) + "UpdateConfig");
    QCOMPARE(f.opHandler->GenerateGraphics(&f.context)->GetChildCount(), 2);
}

}

VESK_TESTS(vesk::test::LinearDimensionGraphicsTest);
#include "LinearDimensionGraphicsTest.moc"
