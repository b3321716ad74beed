#include "Dimension/LengthUnit.h"
#include "Dimension/TemporaryDimensionCommons.h"
#include "Dimension/TemporaryDimensionMgr.h"
#include "Graphics/IGraphicsNode.h"
#include "Host/Dimension/DrawnNodes.h"
#include "Host/Dimension/GeneratorSetting.h"
#include "Support/HostValues.h"
#include "Support/TestValues.h"

namespace vesk
{

namespace
{

/// A rectangle and what is generated for it. There is no view.
struct Fixture : GeneratorSetting
{
    OwnerPtr<IGraphicsNodeGroup> MakeWidth(InputState state = InputState::IS_None)
    {
        return TemporaryDimensionCommons::GenerateWidthDimension(corner, opposite, coordinate,
                                                                 state, style, pixel, data);
    }

    OwnerPtr<IGraphicsNodeGroup> MakeHeight(InputState state = InputState::IS_None)
    {
        return TemporaryDimensionCommons::GenerateHeightDimension(corner, opposite, coordinate,
                                                                  state, style, pixel, data);
    }

    double GetWidth() const { return data[InputState::IS_Width].value; }
    double GetHeight() const { return data[InputState::IS_Height].value; }
    Vector3d GetWidthPosition() const { return data[InputState::IS_Width].textPosition; }
    Vector3d GetHeightPosition() const { return data[InputState::IS_Height].textPosition; }

    Vector3d corner{0, 0, 0};
    Vector3d opposite{200, 100, 0};
};

bool AreClose(const Vector3d& a, const Vector3d& b)
{
    return (a - b).norm() < 1e-9;
}

}

class RectangleDimensionsTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        TemporaryDimensionMgr::GetInstance()->Drop();
        LengthUnit::SetCurrent(LengthUnit::Millimetre());
    }

    void theValuesAreTheExtentsAlongTheAxes_data();
    void theValuesAreTheExtentsAlongTheAxes();
    void theValuesAreInTheUnitShown();
    void theDimensionLinesRunOutsideTheRectangle_data();
    void theDimensionLinesRunOutsideTheRectangle();
    void theWidthHasExtensionLinesAndArrows();
    void theHeightHasExtensionLinesAndArrows();
    void theTextOfAShortSideStandsOutsideItsLine();
    void theSizeIsConstantInPixels();
    void aSideOfNoLengthHasItsTextOnly();
    void aPointHasTwoTexts();
    void theTextsAreTheValues();
    void theTextIsLeftOutWhileItIsTyped_data();
    void theTextIsLeftOutWhileItIsTyped();
    void aLockedSideShowsIt();
    void theSidesFollowTheAxesOfThePlane();
};

void RectangleDimensionsTest::theValuesAreTheExtentsAlongTheAxes_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::newRow("right and up") << 30.5 << 40.25;
    QTest::newRow("left and up") << -30.5 << 40.25;
    QTest::newRow("right and down") << 30.5 << -40.25;
    QTest::newRow("left and down") << -30.5 << -40.25;
}

void RectangleDimensionsTest::theValuesAreTheExtentsAlongTheAxes()
{
    QFETCH(double, x);
    QFETCH(double, y);
    Fixture f;
    f.corner = {1, 2, 0};
    f.opposite = f.corner + Vector3d(x, y, 0);

    f.MakeWidth();
    f.MakeHeight();

    QCOMPARE_EXACTLY(f.GetWidth(), 30.5);
    QCOMPARE_EXACTLY(f.GetHeight(), 40.25);
}

void RectangleDimensionsTest::theValuesAreInTheUnitShown()
{
    Fixture f;
    LengthUnit::SetCurrent(LengthUnit::Centimetre());

    f.MakeWidth();
    f.MakeHeight();

    QCOMPARE(f.GetWidth(), 20.0);
    QCOMPARE(f.GetHeight(), 10.0);
}

void RectangleDimensionsTest::theDimensionLinesRunOutsideTheRectangle_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::addColumn<double>("widthLine");
    QTest::addColumn<double>("heightLine");
    QTest::newRow("right and up") << 200.0 << 100.0 << -28.0 << -60.0;
    QTest::newRow("left and up") << -200.0 << 100.0 << -28.0 << 60.0;
    QTest::newRow("right and down") << 200.0 << -100.0 << 28.0 << -60.0;
    QTest::newRow("left and down") << -200.0 << -100.0 << 28.0 << 60.0;
}

void RectangleDimensionsTest::theDimensionLinesRunOutsideTheRectangle()
{
    QFETCH(double, x);
    QFETCH(double, y);
    QFETCH(double, widthLine);
    QFETCH(double, heightLine);
    Fixture f;
    f.opposite = {x, y, 0};

    const OwnerPtr<IGraphicsNodeGroup> opWidth = f.MakeWidth();
    const OwnerPtr<IGraphicsNodeGroup> opHeight = f.MakeHeight();

    QVERIFY(DrawnNodes(*opWidth).HasLine({0, widthLine, 0}, {x, widthLine, 0}));
    QVERIFY(DrawnNodes(*opHeight).HasLine({heightLine, 0, 0}, {heightLine, y, 0}));
    QVERIFY(AreClose(f.GetWidthPosition(), {x / 2, widthLine, 0}));
    QVERIFY(AreClose(f.GetHeightPosition(), {heightLine, y / 2, 0}));
}

void RectangleDimensionsTest::theWidthHasExtensionLinesAndArrows()
{
    Fixture f;

    const OwnerPtr<IGraphicsNodeGroup> opWidth = f.MakeWidth();

    const DrawnNodes drawn(*opWidth);
    QCOMPARE(drawn.lines.size(), std::size_t(7));
    QVERIFY(drawn.HasLine({0, -4, 0}, {0, -34, 0}));
    QVERIFY(drawn.HasLine({200, -4, 0}, {200, -34, 0}));
    QVERIFY(drawn.HasLine({0, -28, 0}, {8, -25.2, 0}));
    QVERIFY(drawn.HasLine({0, -28, 0}, {8, -30.8, 0}));
    QVERIFY(drawn.HasLine({200, -28, 0}, {192, -25.2, 0}));
    QVERIFY(drawn.HasLine({200, -28, 0}, {192, -30.8, 0}));
}

void RectangleDimensionsTest::theHeightHasExtensionLinesAndArrows()
{
    Fixture f;

    const OwnerPtr<IGraphicsNodeGroup> opHeight = f.MakeHeight();

    const DrawnNodes drawn(*opHeight);
    QCOMPARE(drawn.lines.size(), std::size_t(7));
    QVERIFY(drawn.HasLine({-4, 0, 0}, {-66, 0, 0}));
    QVERIFY(drawn.HasLine({-4, 100, 0}, {-66, 100, 0}));
    QVERIFY(drawn.HasLine({-60, 0, 0}, {-57.2, 8, 0}));
    QVERIFY(drawn.HasLine({-60, 100, 0}, {-62.8, 92, 0}));
}

void RectangleDimensionsTest::theTextOfAShortSideStandsOutsideItsLine()
{
    Fixture f;
    f.opposite = {60, 21, 0};

    const OwnerPtr<IGraphicsNodeGroup> opWidth = f.MakeWidth();
    const OwnerPtr<IGraphicsNodeGroup> opHeight = f.MakeHeight();

    QVERIFY(DrawnNodes(*opWidth).HasLine({0, -28, 0}, {60, -28, 0}));
    QVERIFY(DrawnNodes(*opHeight).HasLine({-28, 0, 0}, {-28, 21, 0}));
    QVERIFY(DrawnNodes(*opHeight).HasLine({-28, 21, 0}, {-30.45, 14, 0}));
    QVERIFY(AreClose(f.GetWidthPosition(), {30, -53, 0}));
    QVERIFY(AreClose(f.GetHeightPosition(), {-88, 10.5, 0}));
}

void RectangleDimensionsTest::theSizeIsConstantInPixels()
{
    Fixture f;
    f.pixel = 0.01;

    const OwnerPtr<IGraphicsNodeGroup> opWidth = f.MakeWidth();

    const DrawnNodes drawn(*opWidth);
    QVERIFY(drawn.HasLine({0, -0.28, 0}, {200, -0.28, 0}));
    QVERIFY(drawn.HasLine({0, -0.28, 0}, {0.08, -0.252, 0}));
}

void RectangleDimensionsTest::aSideOfNoLengthHasItsTextOnly()
{
    Fixture f;
    f.opposite = {200, 0, 0};

    const OwnerPtr<IGraphicsNodeGroup> opWidth = f.MakeWidth();
    const OwnerPtr<IGraphicsNodeGroup> opHeight = f.MakeHeight();

    QVERIFY(DrawnNodes(*opWidth).HasLine({0, -28, 0}, {200, -28, 0}));
    QVERIFY(DrawnNodes(*opHeight).lines.empty());
    QCOMPARE(DrawnNodes(*opHeight).texts.at(0)->GetText(), std::wstring(L"0.000"));
    QVERIFY(AreClose(f.GetHeightPosition(), {-88, 0, 0}));
}

void RectangleDimensionsTest::aPointHasTwoTexts()
{
    Fixture f;
    f.data[InputState::IS_Width].value = 7;
    f.opposite = f.corner;

    const OwnerPtr<IGraphicsNodeGroup> opWidth = f.MakeWidth();
    const OwnerPtr<IGraphicsNodeGroup> opHeight = f.MakeHeight();

    QCOMPARE(opWidth->GetChildCount(), 1);
    QCOMPARE(opHeight->GetChildCount(), 1);
    QCOMPARE_EXACTLY(f.GetWidth(), 0.0);
    QVERIFY(f.GetWidthPosition() != f.GetHeightPosition());
}

void RectangleDimensionsTest::theTextsAreTheValues()
{
    Fixture f;

    const OwnerPtr<IGraphicsNodeGroup> opWidth = f.MakeWidth();
    const OwnerPtr<IGraphicsNodeGroup> opHeight = f.MakeHeight();

    const IGraphicsText& width = *DrawnNodes(*opWidth).texts.at(0);
    const IGraphicsText& height = *DrawnNodes(*opHeight).texts.at(0);
    QCOMPARE(width.GetText(), std::wstring(L"200.000"));
    QCOMPARE(width.GetPosition(), f.GetWidthPosition());
    QCOMPARE(height.GetText(), std::wstring(L"100.000"));
    QCOMPARE(height.GetPosition(), f.GetHeightPosition());
    QVERIFY(DrawnNodes(*opWidth).AreAll(GraphicsRole::Dimension));
}

void RectangleDimensionsTest::theTextIsLeftOutWhileItIsTyped_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<bool>("isWidthTyped");
    QTest::addColumn<bool>("isHeightTyped");
    QTest::newRow("nothing typed") << 0 << false << false;
    QTest::newRow("length") << 1 << false << false;
    QTest::newRow("width") << 5 << true << false;
    QTest::newRow("height") << 6 << false << true;
}

void RectangleDimensionsTest::theTextIsLeftOutWhileItIsTyped()
{
    QFETCH(int, state);
    QFETCH(bool, isWidthTyped);
    QFETCH(bool, isHeightTyped);
    Fixture f;

    const OwnerPtr<IGraphicsNodeGroup> opWidth = f.MakeWidth(static_cast<InputState>(state));
    const OwnerPtr<IGraphicsNodeGroup> opHeight = f.MakeHeight(static_cast<InputState>(state));

    QCOMPARE(DrawnNodes(*opWidth).texts.empty(), isWidthTyped);
    QCOMPARE(DrawnNodes(*opHeight).texts.empty(), isHeightTyped);
    QCOMPARE(DrawnNodes(*opWidth).AreAll(GraphicsRole::ActiveDimension), isWidthTyped);
    QCOMPARE(DrawnNodes(*opHeight).AreAll(GraphicsRole::ActiveDimension), isHeightTyped);
}

void RectangleDimensionsTest::aLockedSideShowsIt()
{
    Fixture f;
    TemporaryDimensionMgr::GetInstance()->SetLocked(InputState::IS_Width, true);

    const OwnerPtr<IGraphicsNodeGroup> opWidth = f.MakeWidth();
    const OwnerPtr<IGraphicsNodeGroup> opHeight = f.MakeHeight();

    QVERIFY(DrawnNodes(*opWidth).AreAll(GraphicsRole::LockedDimension));
    QVERIFY(DrawnNodes(*opHeight).AreAll(GraphicsRole::Dimension));
}

void RectangleDimensionsTest::theSidesFollowTheAxesOfThePlane()
{
    Fixture f;
    f.coordinate = Coordinate3d({5, 6, 7}, -Vector3d::UnitZ(), Vector3d::UnitX());
    f.opposite = {100, 3, -200};

    const OwnerPtr<IGraphicsNodeGroup> opWidth = f.MakeWidth();
    const OwnerPtr<IGraphicsNodeGroup> opHeight = f.MakeHeight();

    QCOMPARE(f.GetWidth(), 200.0);
    QCOMPARE(f.GetHeight(), 100.0);
    QVERIFY(DrawnNodes(*opWidth).HasLine({-28, 0, 0}, {-28, 0, -200}));
    QVERIFY(DrawnNodes(*opHeight).HasLine({0, 0, 60}, {100, 0, 60}));
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::RectangleDimensionsTest);
#include "RectangleDimensionsTest.moc"
