#include "Dimension/LengthUnit.h"

#include "Dimension/InputState.h"
#include "Dimension/LinearTemporaryDimensionContext.h"
#include "Dimension/TemporaryDimensionCommons.h"
#include "Dimension/TemporaryDimensionData.h"
#include "Dimension/TemporaryDimensionStyle.h"
#include "Graphics/IGraphicsNode.h"
#include "Support/HostValues.h"
#include "Support/TestValues.h"

using Unit = const vesk::LengthUnit*;
Q_DECLARE_METATYPE(Unit)

namespace vesk
{

class LengthUnitTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { LengthUnit::SetCurrent(LengthUnit::Millimetre()); }

    void millimetresAreShownAtFirst();
    void eachUnitHasItsLengthAndSymbol_data();
    void eachUnitHasItsLengthAndSymbol();
    void aStyleAsksForTheUnitEachTime();
    void aLengthIsShownInTheUnit();
    void anAngleKnowsNoUnit();
    void theRangeOfALengthIsInTheUnit();
};

void LengthUnitTest::millimetresAreShownAtFirst()
{
    QCOMPARE(LengthUnit::GetCurrent().GetSymbol(), std::wstring(L"mm"));
}

void LengthUnitTest::eachUnitHasItsLengthAndSymbol_data()
{
    QTest::addColumn<Unit>("pUnit");
    QTest::addColumn<QString>("symbol");
    QTest::addColumn<double>("millimetres");
    QTest::newRow("millimetre") << &LengthUnit::Millimetre() << "mm" << 1.0;
    QTest::newRow("centimetre") << &LengthUnit::Centimetre() << "cm" << 10.0;
    QTest::newRow("metre") << &LengthUnit::Metre() << "m" << 1000.0;
    QTest::newRow("inch") << &LengthUnit::Inch() << "in" << 25.4;
}

void LengthUnitTest::eachUnitHasItsLengthAndSymbol()
{
    QFETCH(Unit, pUnit);
    QFETCH(QString, symbol);
    QFETCH(double, millimetres);

    QCOMPARE(QString::fromStdWString(pUnit->GetSymbol()), symbol);
    QCOMPARE(pUnit->ToModel(1.0), millimetres);
    QCOMPARE(pUnit->ToModel(2.5), 2.5 * millimetres);
    QCOMPARE(pUnit->ToShown(millimetres), 1.0);
}

void LengthUnitTest::aStyleAsksForTheUnitEachTime()
{
    const TemporaryDimensionStyle style;
    QCOMPARE(style.ToShown(50.8), 50.8);

    LengthUnit::SetCurrent(LengthUnit::Inch());

    QCOMPARE(style.ToShown(50.8), 2.0);
}

void LengthUnitTest::aLengthIsShownInTheUnit()
{
    LengthUnit::SetCurrent(LengthUnit::Centimetre());
    TemporaryDimensionData data;

    TemporaryDimensionCommons::GenerateLengthDimension({0, 0, 0}, {30, 40, 0}, Coordinate3d(),
                                                       InputState::IS_None,
                                                       TemporaryDimensionStyle(), 1.0, data);

    QCOMPARE(data[InputState::IS_Length].value, 5.0);
}

void LengthUnitTest::anAngleKnowsNoUnit()
{
    LengthUnit::SetCurrent(LengthUnit::Metre());
    TemporaryDimensionData data;

    TemporaryDimensionCommons::GenerateAngleDimension({0, 0, 0}, {0, 40, 0}, Coordinate3d(),
                                                      InputState::IS_None,
                                                      TemporaryDimensionStyle(), 1.0, data);

    QCOMPARE(data[InputState::IS_Angle].value, 90.0);
}

void LengthUnitTest::theRangeOfALengthIsInTheUnit()
{
    LengthUnit::SetCurrent(LengthUnit::Metre());

    const LinearTemporaryDimensionContext context(Coordinate3d(), {0, 0, 0}, {1, 0, 0});

    QCOMPARE(context.GetFirstValueRange().GetMin(), 1e-9);
    QCOMPARE(context.GetFirstValueRange().GetMax(), 1e6);
    QCOMPARE(context.GetSecondValueRange().GetMax(), 360.0);
}

}

VESK_TESTS_WITHOUT_WINDOWS(vesk::LengthUnitTest);
#include "LengthUnitTest.moc"
