#include "Dimension/LengthUnit.h"
#include "Dimension/TemporaryDimensionCommons.h"
#include "Dimension/TemporaryDimensionMgr.h"
#include "Graphics/IGraphicsNode.h"
#include "Host/Dimension/DrawnNodes.h"
#include "Host/Dimension/GeneratorSetting.h"
#include "Support/TestValues.h"

#include <cmath>

namespace vesk
{

namespace
{

/// A quarter of a circle of radius 200, and what is generated for it. There is no view.
struct Fixture : ArcGeneratorSetting
{
    OwnerPtr<IGraphicsNodeGroup> MakeAngle(InputState state = InputState::IS_None)
    {
        return TemporaryDimensionCommons::GenerateCentralAngleDimensionForCenterEndArc(
            centre, start, end, end, hasLines, coordinate, state, style, pixel, data);
    }

    OwnerPtr<IGraphicsNodeGroup> MakeRadius(InputState state = InputState::IS_None)
    {
        return TemporaryDimensionCommons::GenerateRadiusDimensionForCenterEndArc(
            centre, start, end, hasLines, coordinate, state, style, pixel, data);
    }

    Vector3d centre{10, 20, 0};
    Vector3d start{210, 20, 0};
    Vector3d end{10, 220, 0};
    bool hasLines = true;
};

}

class CentreArcDimensionsTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        TemporaryDimensionMgr::GetInstance()->Drop();
        LengthUnit::SetCurrent(LengthUnit::Millimetre());
    }

    void theAngleRunsFromMinus180Above180_data();
    void theAngleRunsFromMinus180Above180();
    void anAngleIsNoNegativeZero();
    void theRadiusIsTheDistanceToTheStart_data();
    void theRadiusIsTheDistanceToTheStart();
    void theRadiusIsInTheUnitShown();
    void theAngleIsAnArcBetweenTwoLines();
    void theAngleWithoutLinesIsItsArc();
    void aNegativeAngleTurnsTheOtherWay();
    void theRadiusIsAnArrowFromTheCentre();
    void theRadiusWithoutALineIsAShortArrow();
    void theShortArrowOfASmallCircleBeginsAtItsCentre();
    void theRadiusStandsAwayFromTheEnd_data();
    void theRadiusStandsAwayFromTheEnd();
    void anAngleOfZeroHasNoArc();
    void aCircleOfNoRadiusHasItsTextsOnly();
    void anEndAtTheCentreHasNoAngle();
    void anEndHardlyOffTheCentreHasNoAngle();
    void theTextsAreTheValues();
    void theTextIsLeftOutWhileItIsTyped();
    void aLockedAngleShowsIt();
};

void CentreArcDimensionsTest::theAngleRunsFromMinus180Above180_data()
{
    QTest::addColumn<double>("from");
    QTest::addColumn<double>("to");
    QTest::addColumn<double>("degrees");
    QTest::newRow("none") << 30.0 << 30.0 << 0.0;
    QTest::newRow("a quarter") << 30.0 << 120.0 << 90.0;
    QTest::newRow("a quarter back") << 30.0 << -60.0 << -90.0;
    QTest::newRow("a half") << 0.0 << 180.0 << 180.0;
    QTest::newRow("a half up") << 90.0 << -90.0 << 180.0;
    QTest::newRow("nearly a half back") << 0.0 << 181.0 << -179.0;
    QTest::newRow("over the x axis backwards") << -170.0 << 170.0 << -20.0;
}

void CentreArcDimensionsTest::theAngleRunsFromMinus180Above180()
{
    QFETCH(double, from);
    QFETCH(double, to);
    QFETCH(double, degrees);
    Fixture f;
    const auto at = [&f](double angle) -> Vector3d {
        return f.centre + 200 * Vector3d(std::cos(angle * Degree), std::sin(angle * Degree), 0);
    };
    f.start = at(from);
    f.end = at(to);

    f.MakeAngle();

    QVERIFY(std::abs(f.GetAngle() - degrees) < 1e-9);
}

void CentreArcDimensionsTest::anAngleIsNoNegativeZero()
{
    Fixture f;
    f.coordinate = Coordinate3d({0, 0, 0}, {0, 0, 1}, {0, -1, 0});
    f.centre = {0, 0, 0};
    f.start = {0, -0.0, 200};
    f.end = {-0.0, 0, 300};

    f.MakeAngle();

    QCOMPARE_EXACTLY(f.GetAngle(), 0.0);
    QVERIFY(!std::signbit(f.GetAngle()));
}

void CentreArcDimensionsTest::theRadiusIsTheDistanceToTheStart_data()
{
    QTest::addColumn<double>("offset");
    QTest::newRow("at the origin") << 0.0;
    QTest::newRow("far away") << 1e9;
}

void CentreArcDimensionsTest::theRadiusIsTheDistanceToTheStart()
{
    QFETCH(double, offset);
    Fixture f;
    f.centre = {offset, -offset, 0};
    f.start = f.centre + Vector3d(-30, 40, 0);

    f.MakeRadius();

    QCOMPARE_EXACTLY(f.GetRadius(), 50.0);
}

void CentreArcDimensionsTest::theRadiusIsInTheUnitShown()
{
    Fixture f;
    LengthUnit::SetCurrent(LengthUnit::Centimetre());

    f.MakeRadius();
    f.MakeAngle();

    QCOMPARE(f.GetRadius(), 20.0);
    QCOMPARE(f.GetAngle(), 90.0);
}

void CentreArcDimensionsTest::theAngleIsAnArcBetweenTwoLines()
{
    Fixture f;

    const OwnerPtr<IGraphicsNodeGroup> opAngle = f.MakeAngle();

    const DrawnNodes drawn(*opAngle);
    QCOMPARE(drawn.lines.size(), std::size_t(6));
    QVERIFY(drawn.HasLine(f.centre, f.start));
    QVERIFY(drawn.HasLine(f.centre, f.end));
    QVERIFY(drawn.HasArc(f.centre, 60, Vector3d::UnitX(), 90 * Degree));
    QVERIFY(drawn.HasLine({70, 20, 0}, {72.8, 28, 0}));
    QVERIFY(drawn.HasLine({10, 80, 0}, {18, 82.8, 0}));
    const Vector3d offset = f.GetAnglePosition() - f.centre;
    QVERIFY(std::abs(offset.x() - offset.y()) < 1e-9);
    QVERIFY(std::abs(offset.norm() - (72 + 61 * std::sqrt(0.5))) < 1e-9);
}

void CentreArcDimensionsTest::theAngleWithoutLinesIsItsArc()
{
    Fixture f;
    f.hasLines = false;

    const OwnerPtr<IGraphicsNodeGroup> opAngle = f.MakeAngle();

    const DrawnNodes drawn(*opAngle);
    QCOMPARE(drawn.lines.size(), std::size_t(4));
    QVERIFY(drawn.HasArc(f.centre, 60, Vector3d::UnitX(), 90 * Degree));
    QVERIFY(!drawn.HasLine(f.centre, f.start));
}

void CentreArcDimensionsTest::aNegativeAngleTurnsTheOtherWay()
{
    Fixture f;
    std::swap(f.start, f.end);

    const OwnerPtr<IGraphicsNodeGroup> opAngle = f.MakeAngle();

    const DrawnNodes drawn(*opAngle);
    QVERIFY(drawn.HasArc(f.centre, 60, Vector3d::UnitY(), -90 * Degree));
    QVERIFY(drawn.HasLine({70, 20, 0}, {72.8, 28, 0}));
    QVERIFY(drawn.HasLine({10, 80, 0}, {18, 82.8, 0}));
}

void CentreArcDimensionsTest::theRadiusIsAnArrowFromTheCentre()
{
    Fixture f;

    const OwnerPtr<IGraphicsNodeGroup> opRadius = f.MakeRadius();

    const DrawnNodes drawn(*opRadius);
    QCOMPARE(drawn.lines.size(), std::size_t(3));
    QVERIFY(drawn.HasLine(f.centre, f.start));
    QVERIFY(drawn.HasLine({210, 20, 0}, {202, 22.8, 0}));
    QVERIFY(drawn.HasLine({210, 20, 0}, {202, 17.2, 0}));
}

void CentreArcDimensionsTest::theRadiusWithoutALineIsAShortArrow()
{
    Fixture f;
    f.hasLines = false;

    const OwnerPtr<IGraphicsNodeGroup> opRadius = f.MakeRadius();

    const DrawnNodes drawn(*opRadius);
    QCOMPARE(drawn.lines.size(), std::size_t(3));
    QVERIFY(drawn.HasLine({186, 20, 0}, {210, 20, 0}));
    QVERIFY(drawn.HasLine({210, 20, 0}, {202, 22.8, 0}));
}

void CentreArcDimensionsTest::theShortArrowOfASmallCircleBeginsAtItsCentre()
{
    Fixture f;
    f.hasLines = false;
    f.start = {19, 20, 0};

    const OwnerPtr<IGraphicsNodeGroup> opRadius = f.MakeRadius();

    QVERIFY(DrawnNodes(*opRadius).HasLine({10, 20, 0}, {19, 20, 0}));
    QVERIFY(DrawnNodes(*opRadius).HasLine({19, 20, 0}, {16, 21.05, 0}));
}

void CentreArcDimensionsTest::theRadiusStandsAwayFromTheEnd_data()
{
    QTest::addColumn<double>("endY");
    QTest::addColumn<double>("textY");
    QTest::newRow("end above") << 220.0 << -5.0;
    QTest::newRow("end below") << -180.0 << 45.0;
}

void CentreArcDimensionsTest::theRadiusStandsAwayFromTheEnd()
{
    QFETCH(double, endY);
    QFETCH(double, textY);
    Fixture f;
    f.end.y() = endY;

    f.MakeRadius();

    QVERIFY((f.GetRadiusPosition() - Vector3d(110, textY, 0)).norm() < 1e-9);
}

void CentreArcDimensionsTest::anAngleOfZeroHasNoArc()
{
    Fixture f;
    f.end = f.start;

    const OwnerPtr<IGraphicsNodeGroup> opAngle = f.MakeAngle();
    f.MakeRadius();

    const DrawnNodes drawn(*opAngle);
    QVERIFY(drawn.arcs.empty());
    QCOMPARE(drawn.lines.size(), std::size_t(2));
    QCOMPARE(drawn.texts.at(0)->GetText(), std::wstring(L"0.00\u00B0"));
    QVERIFY(f.GetAnglePosition().y() < 20);
    QVERIFY(f.GetRadiusPosition().y() > 20);
}

void CentreArcDimensionsTest::aCircleOfNoRadiusHasItsTextsOnly()
{
    Fixture f;
    f.start = f.centre;
    f.end = f.centre;

    const OwnerPtr<IGraphicsNodeGroup> opAngle = f.MakeAngle();
    const OwnerPtr<IGraphicsNodeGroup> opRadius = f.MakeRadius();

    QCOMPARE(opAngle->GetChildCount(), 1);
    QCOMPARE(opRadius->GetChildCount(), 1);
    QCOMPARE_EXACTLY(f.GetRadius(), 0.0);
    QCOMPARE_EXACTLY(f.GetAngle(), 0.0);
    QVERIFY((f.GetRadiusPosition() - f.centre).norm() < 100);
    QVERIFY((f.GetAnglePosition() - f.centre).norm() < 100);
}

void CentreArcDimensionsTest::anEndAtTheCentreHasNoAngle()
{
    Fixture f;
    f.start = {10, -180, 0};
    f.end = f.centre;

    const OwnerPtr<IGraphicsNodeGroup> opAngle = f.MakeAngle();

    QCOMPARE_EXACTLY(f.GetAngle(), 0.0);
    QVERIFY(DrawnNodes(*opAngle).arcs.empty());
    QCOMPARE(DrawnNodes(*opAngle).lines.size(), std::size_t(1));
    QVERIFY(DrawnNodes(*opAngle).HasLine(f.centre, f.start));
}

void CentreArcDimensionsTest::anEndHardlyOffTheCentreHasNoAngle()
{
    Fixture f;
    f.centre = {0, 0, 0};
    f.end = {0, 1e-10, 0};

    f.MakeAngle();

    QCOMPARE_EXACTLY(f.GetAngle(), 0.0);
}

void CentreArcDimensionsTest::theTextsAreTheValues()
{
    Fixture f;

    const OwnerPtr<IGraphicsNodeGroup> opRadius = f.MakeRadius();
    const OwnerPtr<IGraphicsNodeGroup> opAngle = f.MakeAngle();

    const IGraphicsText& radius = *DrawnNodes(*opRadius).texts.at(0);
    const IGraphicsText& angle = *DrawnNodes(*opAngle).texts.at(0);
    QCOMPARE(radius.GetText(), std::wstring(L"R200.000"));
    QCOMPARE(radius.GetPosition(), f.GetRadiusPosition());
    QCOMPARE(angle.GetText(), std::wstring(L"90.00\u00B0"));
    QCOMPARE(angle.GetPosition(), f.GetAnglePosition());
    QVERIFY(DrawnNodes(*opRadius).AreAll(GraphicsRole::Dimension));
    QVERIFY(DrawnNodes(*opAngle).AreAll(GraphicsRole::Dimension));
}

void CentreArcDimensionsTest::theTextIsLeftOutWhileItIsTyped()
{
    Fixture f;

    const OwnerPtr<IGraphicsNodeGroup> opAngle = f.MakeAngle(InputState::IS_CentralAngle);
    const OwnerPtr<IGraphicsNodeGroup> opRadius = f.MakeRadius(InputState::IS_CentralAngle);

    QVERIFY(DrawnNodes(*opAngle).texts.empty());
    QVERIFY(DrawnNodes(*opAngle).AreAll(GraphicsRole::ActiveDimension));
    QCOMPARE(DrawnNodes(*opRadius).texts.size(), std::size_t(1));
    QVERIFY(DrawnNodes(*opRadius).AreAll(GraphicsRole::Dimension));
}

void CentreArcDimensionsTest::aLockedAngleShowsIt()
{
    Fixture f;
    TemporaryDimensionMgr::GetInstance()->SetLocked(InputState::IS_CentralAngle, true, 275.0);

    const OwnerPtr<IGraphicsNodeGroup> opAngle = f.MakeAngle();
    const OwnerPtr<IGraphicsNodeGroup> opRadius = f.MakeRadius();

    QVERIFY(DrawnNodes(*opAngle).AreAll(GraphicsRole::LockedDimension));
    QCOMPARE_EXACTLY(f.GetAngle(), 275.0);
    QVERIFY(DrawnNodes(*opRadius).AreAll(GraphicsRole::Dimension));
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::CentreArcDimensionsTest);
#include "CentreArcDimensionsTest.moc"
