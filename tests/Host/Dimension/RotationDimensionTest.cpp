#include "Dimension/TemporaryDimensionCommons.h"
#include "Dimension/TemporaryDimensionMgr.h"
#include "Graphics/IGraphicsNode.h"
#include "Host/Dimension/DrawnNodes.h"
#include "Host/Dimension/GeneratorSetting.h"
#include "Support/TestValues.h"

#include <cmath>

Q_DECLARE_METATYPE(vesk::Vector3d)

namespace vesk
{

namespace
{

/// A rotation by 90 degrees, and what is generated for it. There is no view.
struct Fixture : ArcGeneratorSetting
{
    OwnerPtr<IGraphicsNodeGroup> Make(InputState state = InputState::IS_None)
    {
        return TemporaryDimensionCommonsUtils::GenerateRotationDimension(
            centre, from, to, coordinate, state, style, pixel, data);
    }

    Vector3d centre{10, 20, 0};
    Vector3d from{210, 20, 0};
    Vector3d to{10, 320, 0};
};

}

class RotationDimensionTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { TemporaryDimensionMgr::GetInstance()->Drop(); }

    void theAngleRunsFromMinus180Above180_data();
    void theAngleRunsFromMinus180Above180();
    void theTurnIsAnArcWithAnArrowAtItsEnd();
    void aTurnBackHasItsArrowAtItsEndToo();
    void theLinesReachTheArc();
    void theArcFitsTheLongerSide();
    void theTextStandsBetweenTheLines();
    void theTextOfANarrowTurnStandsBesideIt_data();
    void theTextOfANarrowTurnStandsBesideIt();
    void noTurnHasNoArc();
    void aPointAtTheCentreHasNoDirection_data();
    void aPointAtTheCentreHasNoDirection();
    void theSizeIsConstantInPixels();
    void theTextIsTheValue();
    void theTextIsLeftOutWhileItIsTyped();
    void aLockedAngleShowsIt();
    void otherTextsPlayNoPart();
};

void RotationDimensionTest::theAngleRunsFromMinus180Above180_data()
{
    QTest::addColumn<Vector3d>("from");
    QTest::addColumn<Vector3d>("to");
    QTest::addColumn<double>("degrees");
    const Vector3d x = Vector3d::UnitX();
    const Vector3d y = Vector3d::UnitY();
    QTest::newRow("none") << Vector3d(x) << Vector3d(5 * x) << 0.0;
    QTest::newRow("a quarter") << Vector3d(x) << Vector3d(5 * y) << 90.0;
    QTest::newRow("a quarter back") << Vector3d(y) << Vector3d(5 * x) << -90.0;
    QTest::newRow("a half") << Vector3d(x) << Vector3d(-5 * x) << 180.0;
    QTest::newRow("a half from below") << Vector3d(-y) << Vector3d(y) << 180.0;
    QTest::newRow("an eighth past a half") << Vector3d(x) << Vector3d(-x - y) << -135.0;
}

void RotationDimensionTest::theAngleRunsFromMinus180Above180()
{
    QFETCH(Vector3d, from);
    QFETCH(Vector3d, to);
    QFETCH(double, degrees);
    Fixture f;
    f.from = f.centre + from;
    f.to = f.centre + to;

    f.Make();

    QCOMPARE_EXACTLY(f.GetAngle(), degrees);
}

void RotationDimensionTest::theTurnIsAnArcWithAnArrowAtItsEnd()
{
    Fixture f;

    const OwnerPtr<IGraphicsNodeGroup> opTurn = f.Make();

    const DrawnNodes drawn(*opTurn);
    QCOMPARE(drawn.lines.size(), std::size_t(4));
    QVERIFY(drawn.HasLine(f.centre, f.from));
    QVERIFY(drawn.HasLine(f.centre, f.to));
    QVERIFY(drawn.HasArc(f.centre, 60, Vector3d::UnitX(), 90 * Degree));
    QVERIFY(drawn.HasLine({10, 80, 0}, {18, 82.8, 0}));
    QVERIFY(drawn.HasLine({10, 80, 0}, {18, 77.2, 0}));
}

void RotationDimensionTest::aTurnBackHasItsArrowAtItsEndToo()
{
    Fixture f;
    f.to = {10, -280, 0};

    const OwnerPtr<IGraphicsNodeGroup> opTurn = f.Make();

    const DrawnNodes drawn(*opTurn);
    QVERIFY(drawn.HasArc(f.centre, 60, Vector3d::UnitX(), -90 * Degree));
    QVERIFY(drawn.HasLine({10, -40, 0}, {18, -42.8, 0}));
}

void RotationDimensionTest::theLinesReachTheArc()
{
    Fixture f;
    f.to = {10, 21, 0};

    const OwnerPtr<IGraphicsNodeGroup> opTurn = f.Make();

    const DrawnNodes drawn(*opTurn);
    QVERIFY(drawn.HasArc(f.centre, 60, Vector3d::UnitX(), 90 * Degree));
    QVERIFY(drawn.HasLine(f.centre, {10, 92, 0}));
    QVERIFY(drawn.HasLine(f.centre, f.from));
}

void RotationDimensionTest::theArcFitsTheLongerSide()
{
    Fixture f;
    f.from = {30, 20, 0};
    f.to = {10, 70, 0};

    const OwnerPtr<IGraphicsNodeGroup> opTurn = f.Make();

    const DrawnNodes drawn(*opTurn);
    QVERIFY(drawn.HasArc(f.centre, 30, Vector3d::UnitX(), 90 * Degree));
    QVERIFY(drawn.HasLine(f.centre, {52, 20, 0}));
    QVERIFY(drawn.HasLine(f.centre, f.to));
}

void RotationDimensionTest::theTextStandsBetweenTheLines()
{
    Fixture f;

    f.Make();

    const Vector3d offset = f.GetAnglePosition() - f.centre;
    QVERIFY(std::abs(offset.x() - offset.y()) < 1e-9);
    QVERIFY(std::abs(offset.norm() - (72 + 61 * std::sqrt(0.5))) < 1e-9);
}

void RotationDimensionTest::theTextOfANarrowTurnStandsBesideIt_data()
{
    QTest::addColumn<double>("y");
    QTest::addColumn<double>("textY");
    QTest::newRow("up") << 30.0 << -5.0;
    QTest::newRow("down") << 10.0 << 45.0;
}

void RotationDimensionTest::theTextOfANarrowTurnStandsBesideIt()
{
    QFETCH(double, y);
    QFETCH(double, textY);
    Fixture f;
    f.to = {210, y, 0};

    f.Make();

    QVERIFY((f.GetAnglePosition() - Vector3d(70, textY, 0)).norm() < 1e-9);
}

void RotationDimensionTest::noTurnHasNoArc()
{
    Fixture f;
    f.to = {110, 20, 0};

    const OwnerPtr<IGraphicsNodeGroup> opTurn = f.Make();

    const DrawnNodes drawn(*opTurn);
    QVERIFY(drawn.arcs.empty());
    QCOMPARE(drawn.lines.size(), std::size_t(2));
    QVERIFY((f.GetAnglePosition() - Vector3d(70, -5, 0)).norm() < 1e-9);
}

void RotationDimensionTest::aPointAtTheCentreHasNoDirection_data()
{
    QTest::addColumn<bool>("hasFrom");
    QTest::addColumn<bool>("hasTo");
    QTest::addColumn<int>("lines");
    QTest::newRow("from") << false << true << 1;
    QTest::newRow("to") << true << false << 1;
    QTest::newRow("both") << false << false << 0;
}

void RotationDimensionTest::aPointAtTheCentreHasNoDirection()
{
    QFETCH(bool, hasFrom);
    QFETCH(bool, hasTo);
    QFETCH(int, lines);
    Fixture f;
    f.from = hasFrom ? f.from : f.centre;
    f.to = hasTo ? f.to : f.centre;

    const OwnerPtr<IGraphicsNodeGroup> opTurn = f.Make();

    const DrawnNodes drawn(*opTurn);
    QCOMPARE_EXACTLY(f.GetAngle(), 0.0);
    QVERIFY(drawn.arcs.empty());
    QCOMPARE(static_cast<int>(drawn.lines.size()), lines);
    QCOMPARE(drawn.texts.at(0)->GetText(), std::wstring(L"0.00\u00B0"));
    QVERIFY((f.GetAnglePosition() - f.centre).norm() < 100);
}

void RotationDimensionTest::theSizeIsConstantInPixels()
{
    Fixture f;
    f.pixel = 0.5;

    const OwnerPtr<IGraphicsNodeGroup> opTurn = f.Make();

    QVERIFY(DrawnNodes(*opTurn).HasArc(f.centre, 30, Vector3d::UnitX(), 90 * Degree));
    QVERIFY(DrawnNodes(*opTurn).HasLine({10, 50, 0}, {14, 51.4, 0}));
}

void RotationDimensionTest::theTextIsTheValue()
{
    Fixture f;

    const OwnerPtr<IGraphicsNodeGroup> opTurn = f.Make();

    const IGraphicsText& text = *DrawnNodes(*opTurn).texts.at(0);
    QCOMPARE(text.GetText(), std::wstring(L"90.00\u00B0"));
    QCOMPARE(text.GetPosition(), f.GetAnglePosition());
    QVERIFY(DrawnNodes(*opTurn).AreAll(GraphicsRole::Dimension));
}

void RotationDimensionTest::theTextIsLeftOutWhileItIsTyped()
{
    Fixture f;

    const OwnerPtr<IGraphicsNodeGroup> opTurn = f.Make(InputState::IS_CentralAngle);

    QVERIFY(DrawnNodes(*opTurn).texts.empty());
    QVERIFY(DrawnNodes(*opTurn).AreAll(GraphicsRole::ActiveDimension));
}

void RotationDimensionTest::aLockedAngleShowsIt()
{
    Fixture f;
    TemporaryDimensionMgr::GetInstance()->SetLocked(InputState::IS_CentralAngle, true, 275.0);

    const OwnerPtr<IGraphicsNodeGroup> opTurn = f.Make();

    QVERIFY(DrawnNodes(*opTurn).AreAll(GraphicsRole::LockedDimension));
    QCOMPARE_EXACTLY(f.GetAngle(), 275.0);
}

void RotationDimensionTest::otherTextsPlayNoPart()
{
    Fixture f;
    f.Make();
    const Vector3d alone = f.GetAnglePosition();
    f.data[InputState::IS_Radius] = {alone, 100.0};

    f.Make();

    QCOMPARE(f.GetAnglePosition(), alone);
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::RotationDimensionTest);
#include "RotationDimensionTest.moc"
