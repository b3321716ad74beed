#include "Dimension/LengthUnit.h"
#include "Dimension/TemporaryDimensionCommons.h"
#include "Dimension/TemporaryDimensionMgr.h"
#include "Graphics/IGraphicsNode.h"
#include "Host/Dimension/DrawnNodes.h"
#include "Host/Dimension/GeneratorSetting.h"
#include "Support/HostValues.h"
#include "Support/TestValues.h"

#include <cmath>

Q_DECLARE_METATYPE(vesk::Vector3d)

namespace vesk
{

namespace
{

/// Three points of a circle of radius 125 about the origin, and what is generated for them. There
/// is no view.
struct Fixture : ArcGeneratorSetting
{
    OwnerPtr<IGraphicsNodeGroup> MakeRadius(InputState state = InputState::IS_None)
    {
        return TemporaryDimensionCommons::GenerateRadiusDimensionFor3PtArc(
            first, second, third, coordinate, state, style, pixel, data);
    }

    OwnerPtr<IGraphicsNodeGroup> MakeAngle(InputState state = InputState::IS_None)
    {
        return TemporaryDimensionCommons::GenerateCentralAngleDimensionFor3PtArc(
            first, second, third, coordinate, state, style, pixel, data);
    }

    Vector3d first{125, 0, 0};
    Vector3d second{0, 125, 0};
    Vector3d third{100, 75, 0};
};

}

class ThreePointArcDimensionsTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        TemporaryDimensionMgr::GetInstance()->Drop();
        LengthUnit::SetCurrent(LengthUnit::Millimetre());
    }

    void theRadiusIsThatOfTheCircle_data();
    void theRadiusIsThatOfTheCircle();
    void theRadiusIsInTheUnitShown();
    void theAngleIsThatOfTheArcThroughTheThirdPoint_data();
    void theAngleIsThatOfTheArcThroughTheThirdPoint();
    void anAngleOfNearlyFourRightAnglesIsBelowThem();
    void aPlaneSeenFromBehindTurnsTheAngleRound();
    void theLeaderRunsFromTheCentreToTheThirdPoint();
    void theArrowOfASmallCircleIsSmaller();
    void theRadiusStandsAboveItsLeader_data();
    void theRadiusStandsAboveItsLeader();
    void theAngleIsAnArcBetweenTwoLines();
    void theArcOfAMajorAngleGoesTheLongWay();
    void theArcOfASmallCircleIsSmaller();
    void theSizeIsConstantInPixels();
    void theTextsAreTheValues();
    void theTextIsLeftOutWhileItIsTyped_data();
    void theTextIsLeftOutWhileItIsTyped();
    void aLockedRadiusShowsIt();
    void aLockedAngleShowsIt();
    void withoutACircleNothingIsDrawn_data();
    void withoutACircleNothingIsDrawn();
    void pointsOffThePlaneCountAsSeenAlongItsNormal();
};

void ThreePointArcDimensionsTest::theRadiusIsThatOfTheCircle_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::newRow("at the origin") << 0.0 << 0.0;
    QTest::newRow("far away") << 1e9 << -1e9;
}

void ThreePointArcDimensionsTest::theRadiusIsThatOfTheCircle()
{
    QFETCH(double, x);
    QFETCH(double, y);
    Fixture f;
    const Vector3d offset(x, y, 0);
    f.first += offset;
    f.second += offset;
    f.third += offset;

    f.MakeRadius();

    QCOMPARE_EXACTLY(f.GetRadius(), 125.0);
}

void ThreePointArcDimensionsTest::theRadiusIsInTheUnitShown()
{
    Fixture f;
    LengthUnit::SetCurrent(LengthUnit::Centimetre());

    f.MakeRadius();

    QCOMPARE(f.GetRadius(), 12.5);
}

void ThreePointArcDimensionsTest::theAngleIsThatOfTheArcThroughTheThirdPoint_data()
{
    QTest::addColumn<double>("from");
    QTest::addColumn<double>("through");
    QTest::addColumn<double>("to");
    QTest::addColumn<double>("degrees");
    QTest::newRow("a quarter") << 0.0 << 45.0 << 90.0 << 90.0;
    QTest::newRow("a quarter back") << 90.0 << 20.0 << 0.0 << -90.0;
    QTest::newRow("the other way round") << 0.0 << 200.0 << 90.0 << -270.0;
    QTest::newRow("and back") << 90.0 << 200.0 << 0.0 << 270.0;
    QTest::newRow("a half") << 10.0 << 50.0 << 190.0 << 180.0;
    QTest::newRow("a half back") << 10.0 << -50.0 << 190.0 << -180.0;
    QTest::newRow("nearly all") << 0.0 << 1.0 << -1.0 << 359.0;
    QTest::newRow("hardly any") << 0.0 << 0.5 << 1.0 << 1.0;
}

void ThreePointArcDimensionsTest::theAngleIsThatOfTheArcThroughTheThirdPoint()
{
    QFETCH(double, from);
    QFETCH(double, through);
    QFETCH(double, to);
    QFETCH(double, degrees);
    Fixture f;
    const auto at = [](double angle) {
        return Vector3d(100 * std::cos(angle * Degree), 100 * std::sin(angle * Degree), 0);
    };
    f.first = at(from);
    f.second = at(to);
    f.third = at(through);

    f.MakeAngle();

    QVERIFY(std::abs(f.GetAngle() - degrees) < 1e-9);
}

void ThreePointArcDimensionsTest::anAngleOfNearlyFourRightAnglesIsBelowThem()
{
    Fixture f;
    f.first = {0, 1e-9, 0};
    f.second = {0, -1e-9, 0};
    f.third = {-1e8, 0, 0};

    f.MakeAngle();

    QVERIFY(f.GetAngle() > 359.99);
    QVERIFY(f.GetAngle() < 360.0);
}

void ThreePointArcDimensionsTest::aPlaneSeenFromBehindTurnsTheAngleRound()
{
    Fixture f;
    f.coordinate = Coordinate3d({0, 0, 0}, Vector3d::UnitX(), -Vector3d::UnitY());

    f.MakeAngle();

    QCOMPARE(f.GetAngle(), -90.0);
}

void ThreePointArcDimensionsTest::theLeaderRunsFromTheCentreToTheThirdPoint()
{
    Fixture f;

    const OwnerPtr<IGraphicsNodeGroup> opRadius = f.MakeRadius();

    const DrawnNodes drawn(*opRadius);
    QCOMPARE(drawn.lines.size(), std::size_t(3));
    QVERIFY(drawn.HasLine({0, 0, 0}, {100, 75, 0}));
    QVERIFY(drawn.HasLine({100, 75, 0}, {91.92, 72.44, 0}));
    QVERIFY(drawn.HasLine({100, 75, 0}, {95.28, 67.96, 0}));
}

void ThreePointArcDimensionsTest::theArrowOfASmallCircleIsSmaller()
{
    Fixture f;
    f.first = {0, 3, 0};
    f.second = {-3, 0, 0};
    f.third = {3, 0, 0};

    const OwnerPtr<IGraphicsNodeGroup> opRadius = f.MakeRadius();

    QVERIFY(DrawnNodes(*opRadius).HasLine({3, 0, 0}, {2, 0.35, 0}));
}

void ThreePointArcDimensionsTest::theRadiusStandsAboveItsLeader_data()
{
    QTest::addColumn<Vector3d>("third");
    QTest::addColumn<Vector3d>("expected");
    QTest::newRow("right") << Vector3d(125, 0, 0) << Vector3d(62.5, 25, 0);
    QTest::newRow("left") << Vector3d(-125, 0, 0) << Vector3d(-62.5, 25, 0);
    QTest::newRow("up right") << Vector3d(100, 75, 0) << Vector3d(19.28, 78.46, 0);
    QTest::newRow("down left") << Vector3d(-100, -75, 0) << Vector3d(-80.72, 3.46, 0);
}

void ThreePointArcDimensionsTest::theRadiusStandsAboveItsLeader()
{
    QFETCH(Vector3d, third);
    QFETCH(Vector3d, expected);
    Fixture f;
    f.first = {0, 125, 0};
    f.second = {35, 120, 0};
    f.third = third;

    f.MakeRadius();

    QVERIFY((f.GetRadiusPosition() - expected).norm() < 1e-9);
}

void ThreePointArcDimensionsTest::theAngleIsAnArcBetweenTwoLines()
{
    Fixture f;

    const OwnerPtr<IGraphicsNodeGroup> opAngle = f.MakeAngle();

    const DrawnNodes drawn(*opAngle);
    QCOMPARE(drawn.lines.size(), std::size_t(6));
    QVERIFY(drawn.HasLine({0, 0, 0}, f.first));
    QVERIFY(drawn.HasLine({0, 0, 0}, f.second));
    QVERIFY(drawn.HasArc({0, 0, 0}, 60, Vector3d::UnitX(), 90 * Degree));
    QVERIFY(drawn.HasLine({60, 0, 0}, {62.8, 8, 0}));
    QVERIFY(drawn.HasLine({0, 60, 0}, {8, 62.8, 0}));
    const double distance = 60 + (48 + 13) * std::sqrt(0.5) + 12;
    QVERIFY((f.GetAnglePosition() - distance * std::sqrt(0.5) * Vector3d(1, 1, 0)).norm() < 1e-9);
}

void ThreePointArcDimensionsTest::theArcOfAMajorAngleGoesTheLongWay()
{
    Fixture f;
    f.third = {-125, 0, 0};

    const OwnerPtr<IGraphicsNodeGroup> opAngle = f.MakeAngle();

    QVERIFY(DrawnNodes(*opAngle).HasArc({0, 0, 0}, 60, Vector3d::UnitX(), -270 * Degree));
    QVERIFY(f.GetAnglePosition().x() < -60);
    QVERIFY(f.GetAnglePosition().y() < -60);
}

void ThreePointArcDimensionsTest::theArcOfASmallCircleIsSmaller()
{
    Fixture f;
    f.pixel = 5;

    const OwnerPtr<IGraphicsNodeGroup> opAngle = f.MakeAngle();

    QVERIFY(DrawnNodes(*opAngle).HasArc({0, 0, 0}, 75, Vector3d::UnitX(), 90 * Degree));
}

void ThreePointArcDimensionsTest::theSizeIsConstantInPixels()
{
    Fixture f;
    f.pixel = 0.1;

    const OwnerPtr<IGraphicsNodeGroup> opRadius = f.MakeRadius();
    const OwnerPtr<IGraphicsNodeGroup> opAngle = f.MakeAngle();

    QVERIFY(DrawnNodes(*opRadius).HasLine({100, 75, 0}, {99.192, 74.744, 0}));
    QVERIFY(DrawnNodes(*opAngle).HasArc({0, 0, 0}, 6, Vector3d::UnitX(), 90 * Degree));
}

void ThreePointArcDimensionsTest::theTextsAreTheValues()
{
    Fixture f;

    const OwnerPtr<IGraphicsNodeGroup> opRadius = f.MakeRadius();
    const OwnerPtr<IGraphicsNodeGroup> opAngle = f.MakeAngle();

    const IGraphicsText& radius = *DrawnNodes(*opRadius).texts.at(0);
    const IGraphicsText& angle = *DrawnNodes(*opAngle).texts.at(0);
    QCOMPARE(radius.GetText(), std::wstring(L"R125.000"));
    QCOMPARE(radius.GetPosition(), f.GetRadiusPosition());
    QCOMPARE(angle.GetText(), std::wstring(L"90.00\u00B0"));
    QCOMPARE(angle.GetPosition(), f.GetAnglePosition());
    QVERIFY(DrawnNodes(*opRadius).AreAll(GraphicsRole::Dimension));
    QVERIFY(DrawnNodes(*opAngle).AreAll(GraphicsRole::Dimension));
}

void ThreePointArcDimensionsTest::theTextIsLeftOutWhileItIsTyped_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<bool>("isRadiusTyped");
    QTest::addColumn<bool>("isAngleTyped");
    QTest::newRow("nothing typed") << 0 << false << false;
    QTest::newRow("radius") << 3 << true << false;
    QTest::newRow("central angle") << 4 << false << true;
}

void ThreePointArcDimensionsTest::theTextIsLeftOutWhileItIsTyped()
{
    QFETCH(int, state);
    QFETCH(bool, isRadiusTyped);
    QFETCH(bool, isAngleTyped);
    Fixture f;

    const OwnerPtr<IGraphicsNodeGroup> opRadius = f.MakeRadius(static_cast<InputState>(state));
    const OwnerPtr<IGraphicsNodeGroup> opAngle = f.MakeAngle(static_cast<InputState>(state));

    QCOMPARE(DrawnNodes(*opRadius).texts.empty(), isRadiusTyped);
    QCOMPARE(DrawnNodes(*opAngle).texts.empty(), isAngleTyped);
    QCOMPARE(DrawnNodes(*opRadius).AreAll(GraphicsRole::ActiveDimension), isRadiusTyped);
    QCOMPARE(DrawnNodes(*opAngle).AreAll(GraphicsRole::ActiveDimension), isAngleTyped);
}

void ThreePointArcDimensionsTest::aLockedRadiusShowsIt()
{
    Fixture f;
    TemporaryDimensionMgr::GetInstance()->SetLocked(InputState::IS_Radius, true);

    const OwnerPtr<IGraphicsNodeGroup> opRadius = f.MakeRadius();
    const OwnerPtr<IGraphicsNodeGroup> opAngle = f.MakeAngle();

    QVERIFY(DrawnNodes(*opRadius).AreAll(GraphicsRole::LockedDimension));
    QVERIFY(DrawnNodes(*opAngle).AreAll(GraphicsRole::Dimension));
}

void ThreePointArcDimensionsTest::aLockedAngleShowsIt()
{
    Fixture f;
    TemporaryDimensionMgr::GetInstance()->SetLocked(InputState::IS_CentralAngle, true, 275.0);

    const OwnerPtr<IGraphicsNodeGroup> opAngle = f.MakeAngle();

    QVERIFY(DrawnNodes(*opAngle).AreAll(GraphicsRole::LockedDimension));
    QCOMPARE_EXACTLY(f.GetAngle(), 275.0);
}

void ThreePointArcDimensionsTest::withoutACircleNothingIsDrawn_data()
{
    QTest::addColumn<Vector3d>("first");
    QTest::addColumn<Vector3d>("second");
    QTest::addColumn<Vector3d>("third");
    const Vector3d a(10, 20, 0);
    const Vector3d b(40, 50, 0);
    QTest::newRow("on one line, between") << a << b << Vector3d(20, 30, 0);
    QTest::newRow("on one line, outside") << a << b << Vector3d(-10, 0, 0);
    QTest::newRow("third is first") << a << b << a;
    QTest::newRow("third is second") << a << b << b;
    QTest::newRow("first is second") << a << a << b;
    QTest::newRow("one point") << a << a << a;
    QTest::newRow("greater than the model")
        << Vector3d(-100, 0, 0) << Vector3d(100, 0, 0) << Vector3d(0, 4.9e-6, 0);
}

void ThreePointArcDimensionsTest::withoutACircleNothingIsDrawn()
{
    QFETCH(Vector3d, first);
    QFETCH(Vector3d, second);
    QFETCH(Vector3d, third);
    Fixture f;
    f.MakeRadius();
    f.MakeAngle();
    f.first = first;
    f.second = second;
    f.third = third;

    const OwnerPtr<IGraphicsNodeGroup> opRadius = f.MakeRadius();
    const OwnerPtr<IGraphicsNodeGroup> opAngle = f.MakeAngle();

    QCOMPARE(opRadius->GetChildCount(), 0);
    QCOMPARE(opAngle->GetChildCount(), 0);
    QCOMPARE_EXACTLY(f.GetRadius(), 0.0);
    QCOMPARE_EXACTLY(f.GetAngle(), 0.0);
    QVERIFY((f.GetRadiusPosition() - third - Vector3d(0, 25, 0)).norm() < 1e-9);
    QCOMPARE(f.GetAnglePosition(), third);
}

void ThreePointArcDimensionsTest::pointsOffThePlaneCountAsSeenAlongItsNormal()
{
    Fixture f;
    f.first.z() = 1000;
    f.second.z() = -77;

    const OwnerPtr<IGraphicsNodeGroup> opRadius = f.MakeRadius();
    f.MakeAngle();

    QCOMPARE(f.GetRadius(), 125.0);
    QCOMPARE(f.GetAngle(), 90.0);
    QVERIFY(DrawnNodes(*opRadius).HasLine({0, 0, 0}, {100, 75, 0}));
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::ThreePointArcDimensionsTest);
#include "ThreePointArcDimensionsTest.moc"
