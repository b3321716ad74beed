#include "Dimension/TemporaryDimensionStyle.h"

#include "Dimension/LinearTemporaryDimensionContext.h"
#include "Dimension/TemporaryDimensionData.h"
#include "Dimension/TemporaryDimensionMgr.h"
#include "Support/HostValues.h"
#include "Support/TestValues.h"

#include <QRandomGenerator>

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
    void textsAreThoseOfTheEditor_data();
    void textsAreThoseOfTheEditor();
    void everyDoubleHasAText();
    void theEditorHasASize();
    void theWidthIsThatOfTheOpenEditor();
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
    QTest::newRow("halfway") << 100.0625 << "100.063";
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

void TemporaryDimensionStyleTest::textsAreThoseOfTheEditor_data()
{
    QTest::addColumn<double>("value");
    for (const double value : {100.0625,
                               0.0625,
                               -0.0625,
                               -100.1875,
                               1.0005,
                               2.0005,
                               0.0005,
                               12345.9375,
                               0.125,
                               0.375,
                               -26.625,
                               1.005,
                               2.675,
                               89.995,
                               0.99951171875,
                               281474976710655.0625,
                               281474976710655.1875,
                               1e15,
                               1e300,
                               4503599627370495.5,
                               1e-300,
                               0.0015})
        QTest::addRow("%.17g", value) << value;
    QRandomGenerator random(20261122);
    for (int i = 0; i < 1000; ++i)
    {
        const double value = random.bounded(-2000000, 2000000) / 32.0;
        QTest::addRow("%d, %.17g", i, value) << value;
    }
}

void TemporaryDimensionStyleTest::textsAreThoseOfTheEditor()
{
    QFETCH(double, value);
    const TemporaryDimensionStyle style;

    QCOMPARE(QString::fromStdWString(style.FormatLength(value)), QString::number(value, 'f', 3));
    QCOMPARE(QString::fromStdWString(style.FormatAngle(value)), QString::number(value, 'f', 2));
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

void TemporaryDimensionStyleTest::theWidthIsThatOfTheOpenEditor()
{
    TemporaryDimensionMgr& manager = *TemporaryDimensionMgr::GetInstance();

    manager.SetEditorWidth(240);
    const int wide = TemporaryDimensionStyle().GetEditorWidth();
    manager.SetEditorWidth(50);
    const int narrow = TemporaryDimensionStyle().GetEditorWidth();
    manager.SetEditorWidth(0);

    QCOMPARE(wide, 240);
    QCOMPARE(narrow, 96);
    QCOMPARE(TemporaryDimensionStyle().GetEditorWidth(), 96);
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

VESK_TESTS_WITHOUT_APPLICATION(vesk::TemporaryDimensionStyleTest);
#include "TemporaryDimensionStyleTest.moc"
