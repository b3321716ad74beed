#include "Dimension/TemporaryDimensionCommons.h"

#include "Dimension/TemporaryDimensionMgr.h"
#include "Graphics/IGraphicsNode.h"
#include "Host/Dimension/DrawnNodes.h"
#include "Host/Dimension/GeneratorSetting.h"
#include "Support/HostValues.h"
#include "Support/TestValues.h"

#include <cmath>
#include <limits>

namespace vesk
{

namespace
{

/// A segment and what is generated for it. There is no view.
struct Fixture : GeneratorSetting
{
    OwnerPtr<IGraphicsNodeGroup> MakeLength(InputState state = InputState::IS_None)
    {
        return TemporaryDimensionCommons::GenerateLengthDimension(start, end, coordinate, state,
                                                                  style, pixel, data);
    }

    OwnerPtr<IGraphicsNodeGroup> MakeAngle(InputState state = InputState::IS_None)
    {
        return TemporaryDimensionCommons::GenerateAngleDimension(start, end, coordinate, state,
                                                                 style, pixel, data);
    }

    Vector3d start{0, 0, 0};
    Vector3d end{100, 0, 0};
};

}

class TemporaryDimensionCommonsTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { TemporaryDimensionMgr::GetInstance()->Drop(); }

    void theLengthIsTheDistance();
    void theDimensionLineRunsBesideTheSegment();
    void extensionLinesLeaveAGapAndOvershoot();
    void arrowsPointAtTheEndsOfTheDimensionLine();
    void theLengthStandsOffTheArc_data();
    void theLengthStandsOffTheArc();
    void theSizeIsConstantInPixels();
    void theAngleRunsFromMinus180Above180_data();
    void theAngleRunsFromMinus180Above180();
    void theArcRunsFromTheXAxisToTheSegment();
    void theArcOfAShortSegmentIsSmaller();
    void anAngleOfZeroHasNoArc();
    void theTextStandsAtItsPosition();
    void theTextIsLeftOutWhileItIsTyped_data();
    void theTextIsLeftOutWhileItIsTyped();
    void aLockedDimensionShowsIt();
    void aLockedValueIsShownAsItWasGiven_data();
    void aLockedValueIsShownAsItWasGiven();
    void anUnlockedValueIsMeasuredAgain();
    void whatWouldShowAsMinusZeroIsZero_data();
    void whatWouldShowAsMinusZeroIsZero();
    void whatIsHardlyMoreThanZeroKeepsItsValue();
    void theLengthOfASegmentAcrossThePlaneIsDrawnInIt_data();
    void theLengthOfASegmentAcrossThePlaneIsDrawnInIt();
    void theAngleOfASegmentAcrossThePlaneIsZero();
    void dimensionsStandInThePlaneOfTheCoordinateSystem();
    void whatIsNoSegmentHasNoGraphics_data();
    void whatIsNoSegmentHasNoGraphics();
    void aPixelWithoutAWidthCountsAsOne();
};

void TemporaryDimensionCommonsTest::theLengthIsTheDistance()
{
    Fixture f;
    f.start = {1, 2, 0};
    f.end = {4, 6, 0};

    f.MakeLength();

    QCOMPARE(f.data[InputState::IS_Length].value, 5.0);
    QCOMPARE(f.data[InputState::IS_Angle].value, 0.0);
}

void TemporaryDimensionCommonsTest::theDimensionLineRunsBesideTheSegment()
{
    Fixture f;

    const OwnerPtr<IGraphicsNodeGroup> opGroup = f.MakeLength();

    const DrawnNodes drawn(*opGroup);
    QVERIFY(drawn.HasLine({0, 28, 0}, {100, 28, 0}));
    QCOMPARE(f.data[InputState::IS_Length].textPosition, Vector3d(50, 28, 0));
}

void TemporaryDimensionCommonsTest::extensionLinesLeaveAGapAndOvershoot()
{
    Fixture f;

    const OwnerPtr<IGraphicsNodeGroup> opGroup = f.MakeLength();

    const DrawnNodes drawn(*opGroup);
    QVERIFY(drawn.HasLine({0, 4, 0}, {0, 34, 0}));
    QVERIFY(drawn.HasLine({100, 4, 0}, {100, 34, 0}));
}

void TemporaryDimensionCommonsTest::arrowsPointAtTheEndsOfTheDimensionLine()
{
    Fixture f;

    const OwnerPtr<IGraphicsNodeGroup> opGroup = f.MakeLength();

    const DrawnNodes drawn(*opGroup);
    QCOMPARE(drawn.lines.size(), std::size_t(7));
    QVERIFY(drawn.HasLine({0, 28, 0}, {8, 30.8, 0}));
    QVERIFY(drawn.HasLine({0, 28, 0}, {8, 25.2, 0}));
    QVERIFY(drawn.HasLine({100, 28, 0}, {92, 30.8, 0}));
    QVERIFY(drawn.HasLine({100, 28, 0}, {92, 25.2, 0}));
}

void TemporaryDimensionCommonsTest::theLengthStandsOffTheArc_data()
{
    QTest::addColumn<double>("degrees");
    QTest::newRow("right") << 0.0;
    QTest::newRow("up") << 90.0;
    QTest::newRow("up right") << 30.0;
    QTest::newRow("down right") << -30.0;
    QTest::newRow("up left") << 150.0;
    QTest::newRow("down left") << -150.0;
}

void TemporaryDimensionCommonsTest::theLengthStandsOffTheArc()
{
    QFETCH(double, degrees);
    Fixture f;
    const Vector3d direction(std::cos(degrees * Degree), std::sin(degrees * Degree), 0);
    f.end = 300 * direction;

    f.MakeLength();

    const Vector3d offset = f.data[InputState::IS_Length].textPosition - f.end / 2;
    const double side = direction.x() * offset.y() - direction.y() * offset.x();
    QVERIFY(degrees < 0 ? side <= -28 : side >= 28);
    QVERIFY(std::abs(offset.dot(direction)) < 1e-9);
}

void TemporaryDimensionCommonsTest::theSizeIsConstantInPixels()
{
    Fixture f;
    f.pixel = 0.5;

    const OwnerPtr<IGraphicsNodeGroup> opGroup = f.MakeLength();

    QVERIFY(DrawnNodes(*opGroup).HasLine({0, 14, 0}, {100, 14, 0}));
}

void TemporaryDimensionCommonsTest::theAngleRunsFromMinus180Above180_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::addColumn<double>("z");
    QTest::addColumn<double>("degrees");
    QTest::newRow("right") << 1.0 << 0.0 << 0.0 << 0.0;
    QTest::newRow("diagonal") << 1.0 << 1.0 << 0.0 << 45.0;
    QTest::newRow("up") << 0.0 << 1.0 << 0.0 << 90.0;
    QTest::newRow("left") << -1.0 << 0.0 << 0.0 << 180.0;
    QTest::newRow("left, every zero negative") << -1.0 << -0.0 << -1.0 << 180.0;
    QTest::newRow("down") << 0.0 << -1.0 << 0.0 << -90.0;
}

void TemporaryDimensionCommonsTest::theAngleRunsFromMinus180Above180()
{
    QFETCH(double, x);
    QFETCH(double, y);
    QFETCH(double, z);
    QFETCH(double, degrees);
    Fixture f;
    f.end = {100 * x, 100 * y, 100 * z};

    f.MakeAngle();

    QCOMPARE(f.data[InputState::IS_Angle].value, degrees);
}

void TemporaryDimensionCommonsTest::theArcRunsFromTheXAxisToTheSegment()
{
    Fixture f;
    f.start = {10, 20, 0};
    f.end = {10, -180, 0};

    const OwnerPtr<IGraphicsNodeGroup> opGroup = f.MakeAngle();

    const DrawnNodes drawn(*opGroup);
    QCOMPARE(drawn.arcs.size(), std::size_t(1));
    QCOMPARE(drawn.arcs[0]->GetCentre(), f.start);
    QCOMPARE(drawn.arcs[0]->GetXAxis(), Vector3d(Vector3d::UnitX()));
    QCOMPARE(drawn.arcs[0]->GetRadius(), 60.0);
    QCOMPARE(drawn.arcs[0]->GetSweep(), -90 * Degree);
    QVERIFY(drawn.HasLine({10, 20, 0}, {82, 20, 0}));
    QVERIFY(drawn.HasLine({70, 20, 0}, {72.8, 12, 0}));
    QVERIFY(drawn.HasLine({10, -40, 0}, {18, -37.2, 0}));
}

void TemporaryDimensionCommonsTest::theArcOfAShortSegmentIsSmaller()
{
    Fixture f;
    f.end = {0, 50, 0};

    const OwnerPtr<IGraphicsNodeGroup> opGroup = f.MakeAngle();

    QCOMPARE(DrawnNodes(*opGroup).arcs[0]->GetRadius(), 30.0);
}

void TemporaryDimensionCommonsTest::anAngleOfZeroHasNoArc()
{
    Fixture f;

    const OwnerPtr<IGraphicsNodeGroup> opGroup = f.MakeAngle();

    const DrawnNodes drawn(*opGroup);
    QVERIFY(drawn.arcs.empty());
    QCOMPARE(drawn.texts.size(), std::size_t(1));
}

void TemporaryDimensionCommonsTest::theTextStandsAtItsPosition()
{
    Fixture f;
    f.end = {0, 200, 0};

    const OwnerPtr<IGraphicsNodeGroup> opLength = f.MakeLength();
    const OwnerPtr<IGraphicsNodeGroup> opAngle = f.MakeAngle();

    const IGraphicsText& length = *DrawnNodes(*opLength).texts.at(0);
    const IGraphicsText& angle = *DrawnNodes(*opAngle).texts.at(0);
    QCOMPARE(length.GetText(), std::wstring(L"200.000"));
    QCOMPARE(length.GetPosition(), f.data[InputState::IS_Length].textPosition);
    QCOMPARE(angle.GetText(), std::wstring(L"90.00\u00B0"));
    QCOMPARE(angle.GetPosition(), f.data[InputState::IS_Angle].textPosition);
    QVERIFY(DrawnNodes(*opLength).AreAll(GraphicsRole::Dimension));
    QVERIFY(DrawnNodes(*opAngle).AreAll(GraphicsRole::Dimension));
}

void TemporaryDimensionCommonsTest::theTextIsLeftOutWhileItIsTyped_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<int>("lengthTexts");
    QTest::addColumn<int>("angleTexts");
    QTest::newRow("nothing typed") << 0 << 1 << 1;
    QTest::newRow("length") << 1 << 0 << 1;
    QTest::newRow("angle") << 2 << 1 << 0;
}

void TemporaryDimensionCommonsTest::theTextIsLeftOutWhileItIsTyped()
{
    QFETCH(int, state);
    QFETCH(int, lengthTexts);
    QFETCH(int, angleTexts);
    Fixture f;
    f.end = {80, 60, 0};

    const auto opLength = f.MakeLength(static_cast<InputState>(state));
    const auto opAngle = f.MakeAngle(static_cast<InputState>(state));

    const DrawnNodes length(*opLength);
    const DrawnNodes angle(*opAngle);
    QCOMPARE(static_cast<int>(length.texts.size()), lengthTexts);
    QCOMPARE(static_cast<int>(angle.texts.size()), angleTexts);
    QCOMPARE(length.AreAll(GraphicsRole::ActiveDimension), lengthTexts == 0);
    QCOMPARE(angle.AreAll(GraphicsRole::ActiveDimension), angleTexts == 0);
}

void TemporaryDimensionCommonsTest::aLockedDimensionShowsIt()
{
    Fixture f;
    f.end = {80, 60, 0};
    TemporaryDimensionMgr::GetInstance()->SetLocked(InputState::IS_Length, true);

    const OwnerPtr<IGraphicsNodeGroup> opLocked = f.MakeLength();
    const OwnerPtr<IGraphicsNodeGroup> opTyped = f.MakeLength(InputState::IS_Length);
    const OwnerPtr<IGraphicsNodeGroup> opOther = f.MakeAngle();

    QVERIFY(DrawnNodes(*opLocked).AreAll(GraphicsRole::LockedDimension));
    QVERIFY(DrawnNodes(*opTyped).AreAll(GraphicsRole::ActiveDimension));
    QVERIFY(DrawnNodes(*opOther).AreAll(GraphicsRole::Dimension));
}

void TemporaryDimensionCommonsTest::aLockedValueIsShownAsItWasGiven_data()
{
    QTest::addColumn<double>("degrees");
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::addColumn<QString>("text");
    QTest::newRow("three quarters") << 270.0 << 0.0 << -200.0 << QString::fromUtf8("270.00\u00B0");
    QTest::newRow("back") << -300.0 << 100.0 << 173.2 << QString::fromUtf8("-300.00\u00B0");
    QTest::newRow("minus a half turn")
        << -180.0 << -200.0 << 0.0 << QString::fromUtf8("-180.00\u00B0");
    QTest::newRow("a whole turn") << 360.0 << 200.0 << 0.0 << QString::fromUtf8("360.00\u00B0");
}

void TemporaryDimensionCommonsTest::aLockedValueIsShownAsItWasGiven()
{
    QFETCH(double, degrees);
    QFETCH(double, x);
    QFETCH(double, y);
    QFETCH(QString, text);
    Fixture f;
    f.end = {x, y, 0};
    TemporaryDimensionMgr::GetInstance()->SetLocked(InputState::IS_Angle, true, degrees);
    TemporaryDimensionMgr::GetInstance()->SetLocked(InputState::IS_Length, true, 1e-3);

    const OwnerPtr<IGraphicsNodeGroup> opLength = f.MakeLength();
    const OwnerPtr<IGraphicsNodeGroup> opAngle = f.MakeAngle();

    const DrawnNodes angle(*opAngle);
    QCOMPARE(QString::fromStdWString(angle.texts.at(0)->GetText()), text);
    QCOMPARE(f.data[InputState::IS_Angle].value, degrees);
    QCOMPARE(angle.arcs.at(0)->GetSweep(), degrees * Degree);
    QCOMPARE(f.data[InputState::IS_Length].value, 1e-3);
}

void TemporaryDimensionCommonsTest::anUnlockedValueIsMeasuredAgain()
{
    Fixture f;
    f.end = {0, -200, 0};
    TemporaryDimensionMgr::GetInstance()->SetLocked(InputState::IS_Angle, true, 270.0);
    TemporaryDimensionMgr::GetInstance()->SetLocked(InputState::IS_Angle, false);

    f.MakeAngle();

    QCOMPARE(f.data[InputState::IS_Angle].value, -90.0);
}

void TemporaryDimensionCommonsTest::whatWouldShowAsMinusZeroIsZero_data()
{
    QTest::addColumn<double>("y");
    QTest::newRow("hardly below the axis") << -0.001;
    QTest::newRow("a negative zero") << -0.0;
}

void TemporaryDimensionCommonsTest::whatWouldShowAsMinusZeroIsZero()
{
    QFETCH(double, y);
    Fixture f;
    f.end = {200, y, 0};

    const OwnerPtr<IGraphicsNodeGroup> opAngle = f.MakeAngle();

    QVERIFY(f.data[InputState::IS_Angle].value == 0.0);
    QVERIFY(!std::signbit(f.data[InputState::IS_Angle].value));
    QCOMPARE(DrawnNodes(*opAngle).texts.at(0)->GetText(), std::wstring(L"0.00\u00B0"));
}

void TemporaryDimensionCommonsTest::whatIsHardlyMoreThanZeroKeepsItsValue()
{
    Fixture f;
    f.end = {200, 0.001, 0};

    f.MakeAngle();

    QVERIFY(f.data[InputState::IS_Angle].value > 0.0);
}

void TemporaryDimensionCommonsTest::theLengthOfASegmentAcrossThePlaneIsDrawnInIt_data()
{
    QTest::addColumn<double>("z");
    QTest::addColumn<int>("state");
    QTest::newRow("above") << 100.0 << 0;
    QTest::newRow("below") << -100.0 << 0;
    QTest::newRow("while it is typed") << 100.0 << 1;
}

void TemporaryDimensionCommonsTest::theLengthOfASegmentAcrossThePlaneIsDrawnInIt()
{
    QFETCH(double, z);
    QFETCH(int, state);
    Fixture f;
    f.start = {10, 20, 5};
    f.end = {10, 20, 5 + z};
    f.data[InputState::IS_Length].value = 7.0;

    const OwnerPtr<IGraphicsNodeGroup> opGroup = f.MakeLength(static_cast<InputState>(state));

    QCOMPARE(f.data[InputState::IS_Length].value, 100.0);
    QVERIFY(f.data[InputState::IS_Length].textPosition == Vector3d(60, 48, 5));
    QVERIFY(DrawnNodes(*opGroup).HasLine({10, 48, 5}, {110, 48, 5}));
}

void TemporaryDimensionCommonsTest::theAngleOfASegmentAcrossThePlaneIsZero()
{
    Fixture f;
    f.end = {0, 0, 100};
    f.data[InputState::IS_Angle].value = 7.0;

    const OwnerPtr<IGraphicsNodeGroup> opGroup = f.MakeAngle();

    QCOMPARE(f.data[InputState::IS_Angle].value, 0.0);
    QCOMPARE(DrawnNodes(*opGroup).texts.size(), std::size_t(1));
}

void TemporaryDimensionCommonsTest::dimensionsStandInThePlaneOfTheCoordinateSystem()
{
    Fixture f;
    f.coordinate = Coordinate3d({0, 0, 0}, Vector3d::UnitY(), Vector3d::UnitZ());
    f.start = {7, 0, 0};
    f.end = {7, 0, 200};

    const OwnerPtr<IGraphicsNodeGroup> opLength = f.MakeLength();
    const OwnerPtr<IGraphicsNodeGroup> opAngle = f.MakeAngle();

    QCOMPARE(f.data[InputState::IS_Angle].value, 90.0);
    QCOMPARE(f.data[InputState::IS_Length].textPosition.x(), 7.0);
    QCOMPARE(f.data[InputState::IS_Length].textPosition.z(), 100.0);
    QCOMPARE(DrawnNodes(*opAngle).arcs.at(0)->GetXAxis(), Vector3d(Vector3d::UnitY()));
    QCOMPARE(DrawnNodes(*opAngle).arcs.at(0)->GetYAxis(), Vector3d(Vector3d::UnitZ()));
    QCOMPARE_EXACTLY(DrawnNodes(*opLength).lines.at(0)->GetStart().x(), 7.0);
}

void TemporaryDimensionCommonsTest::whatIsNoSegmentHasNoGraphics_data()
{
    QTest::addColumn<double>("x");
    QTest::newRow("point") << 0.0;
    QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("endless") << std::numeric_limits<double>::infinity();
}

void TemporaryDimensionCommonsTest::whatIsNoSegmentHasNoGraphics()
{
    QFETCH(double, x);
    Fixture f;
    f.end = {x, 0, 0};

    const OwnerPtr<IGraphicsNodeGroup> opLength = f.MakeLength();
    const OwnerPtr<IGraphicsNodeGroup> opAngle = f.MakeAngle();

    QCOMPARE(opLength->GetChildCount(), 0);
    QCOMPARE(opAngle->GetChildCount(), 0);
    QVERIFY(f.data[InputState::IS_Length].textPosition.allFinite());
    QVERIFY(f.data[InputState::IS_Angle].textPosition.allFinite());
}

void TemporaryDimensionCommonsTest::aPixelWithoutAWidthCountsAsOne()
{
    Fixture f;
    f.pixel = 0.0;

    const OwnerPtr<IGraphicsNodeGroup> opGroup = f.MakeLength();

    QVERIFY(DrawnNodes(*opGroup).HasLine({0, 28, 0}, {100, 28, 0}));
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::TemporaryDimensionCommonsTest);
#include "TemporaryDimensionCommonsTest.moc"
