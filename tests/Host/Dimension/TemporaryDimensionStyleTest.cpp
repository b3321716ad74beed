#include "Dimension/TemporaryDimensionStyle.h"

#include "Dimension/LinearTemporaryDimensionContext.h"
#include "Dimension/TemporaryDimensionData.h"
#include "Support/HostValues.h"
#include "Support/TestValues.h"

#include <limits>

namespace vesk
{

class TemporaryDimensionStyleTest : public QObject
{
    Q_OBJECT

private slots:
    void lengthsHaveThreeDecimals_data();
    void lengthsHaveThreeDecimals();
    void anglesHaveTwoDecimals_data();
    void anglesHaveTwoDecimals();
    void everyDoubleHasAText();
    void theEditorHasASize();
    void aLinearContextTakesLengthsAndAnglesOfTheModel();
    void rangesOfALinearContextCanBeNarrowed();
    void eachStateHasAnEntryOfItsOwn();
};

void TemporaryDimensionStyleTest::lengthsHaveThreeDecimals_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("whole") << 125.0 << "125.000";
    QTest::newRow("fraction") << 125.5 << "125.500";
    QTest::newRow("rounded") << 2.0 / 3.0 << "0.667";
    QTest::newRow("no grouping") << 1234567.0 << "1234567.000";
    QTest::newRow("zero") << 0.0 << "0.000";
    QTest::newRow("minus zero") << -0.0 << "0.000";
    QTest::newRow("hardly negative") << -0.0004 << "0.000";
    QTest::newRow("negative") << -0.001 << "-0.001";
}

void TemporaryDimensionStyleTest::lengthsHaveThreeDecimals()
{
    QFETCH(double, value);
    QFETCH(QString, text);

    QCOMPARE(QString::fromStdWString(TemporaryDimensionStyle().FormatLength(value)), text);
    QCOMPARE(TemporaryDimensionStyle().GetFirstValueDecimals(), 3);
}

void TemporaryDimensionStyleTest::anglesHaveTwoDecimals_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("quarter") << 90.0 << "90.00";
    QTest::newRow("negative") << -26.565 << "-26.57";
    QTest::newRow("hardly negative") << -0.004 << "0.00";
}

void TemporaryDimensionStyleTest::anglesHaveTwoDecimals()
{
    QFETCH(double, value);
    QFETCH(QString, text);

    QCOMPARE(QString::fromStdWString(TemporaryDimensionStyle().FormatAngle(value)), text);
    QCOMPARE(TemporaryDimensionStyle().GetSecondValueDecimals(), 2);
}

void TemporaryDimensionStyleTest::everyDoubleHasAText()
{
    const TemporaryDimensionStyle style;

    const std::wstring greatest = style.FormatLength(std::numeric_limits<double>::lowest());
    QCOMPARE(greatest.size(), std::size_t(1 + 309 + 4));
    QVERIFY(!style.FormatLength(std::numeric_limits<double>::quiet_NaN()).empty());
}

void TemporaryDimensionStyleTest::theEditorHasASize()
{
    QCOMPARE(TemporaryDimensionStyle().GetEditorWidth(), 96);
    QCOMPARE(TemporaryDimensionStyle().GetEditorHeight(), 26);
}

void TemporaryDimensionStyleTest::aLinearContextTakesLengthsAndAnglesOfTheModel()
{
    const LinearTemporaryDimensionContext context(Coordinate3d(), {1, 2, 3}, {4, 5, 6});

    QCOMPARE(context.GetFirstValueRange().GetMin(), 1e-6);
    QCOMPARE(context.GetFirstValueRange().GetMax(), 1e9);
    QCOMPARE(context.GetSecondValueRange().GetMin(), -360.0);
    QCOMPARE(context.GetSecondValueRange().GetMax(), 360.0);
    QCOMPARE(context.GetStartPoint(), Vector3d(1, 2, 3));
    QCOMPARE(context.GetEndPoint(), Vector3d(4, 5, 6));
    QVERIFY(context.IsLengthEnabled() && context.IsAngleEnabled());
}

void TemporaryDimensionStyleTest::rangesOfALinearContextCanBeNarrowed()
{
    LinearTemporaryDimensionContext context(Coordinate3d(), {0, 0, 0}, {1, 0, 0});

    context.SetFirstValueRange({1, 2});
    context.SetSecondValueRange({3, 4});

    QCOMPARE(context.GetFirstValueRange().GetMax(), 2.0);
    QCOMPARE(context.GetSecondValueRange().GetMin(), 3.0);
}

void TemporaryDimensionStyleTest::eachStateHasAnEntryOfItsOwn()
{
    TemporaryDimensionData data;

    data[InputState::IS_Length].value = 1.0;
    data[InputState::IS_Height].value = 6.0;

    QCOMPARE(data[InputState::IS_Length].value, 1.0);
    QCOMPARE(data[InputState::IS_Angle].value, 0.0);
    QCOMPARE(data[InputState::IS_Height].value, 6.0);
}

}

QTEST_APPLESS_MAIN(vesk::TemporaryDimensionStyleTest)
#include "TemporaryDimensionStyleTest.moc"
