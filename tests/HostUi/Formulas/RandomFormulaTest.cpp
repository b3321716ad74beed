#include "HostUi/Formulas/RandomFormula.h"

#include "Dimension/LengthUnit.h"
#include "HostUi/TypedText.h"
#include "Support/TestValues.h"

#include <QRegularExpression>

using namespace vesk;

Q_DECLARE_METATYPE(const LengthUnit*)
Q_DECLARE_METATYPE(Rational)

namespace
{

constexpr int FormulaCount = 20000;
constexpr int SumCount = 100000;

/// The number of significant digits of a number's text, without trailing zeros.
int CountDigits(QString number)
{
    static const QRegularExpression s_mute(QStringLiteral("^-?[0.]*|e.*$|\\."));
    static const QRegularExpression s_lastZeros(QStringLiteral("0+$"));
    return number.remove(s_mute).remove(s_lastZeros).size();
}

/// Whether no number with fewer digits reads back to the same double.
bool IsShortest(const QString& number)
{
    const int digits = CountDigits(number);
    const double value = number.toDouble();
    return digits <= 1 || QString::number(value, 'e', digits - 2).toDouble() != value;
}

}

/// Random formulas, compared with the values from which they were generated.
class RandomFormulaTest final : public QObject
{
    Q_OBJECT

private slots:
    void formulaOfNumbersIsRoundedOnce()
    {
        RandomFormulas formulas(20261121);

        for (int i = 0; i < FormulaCount / 2 && !QTest::currentTestFailed(); ++i)
            CheckNumber(formulas.MakeNumber(1 + i % 4));
    }

    void formulaWithUnitsIsRoundedOnce_data() { AddUnits(); }

    void formulaWithUnitsIsRoundedOnce()
    {
        QFETCH(const LengthUnit*, unit);
        QFETCH(Rational, millimetres);
        RandomFormulas formulas(4711);

        for (int i = 0; i < FormulaCount / 8 && !QTest::currentTestFailed(); ++i)
            CheckLength(formulas.MakeLength(i % 4), *unit, millimetres);
    }

    void sumOfUnitsIsRoundedOnce_data() { AddUnits(); }

    void sumOfUnitsIsRoundedOnce()
    {
        QFETCH(const LengthUnit*, unit);
        QFETCH(Rational, millimetres);
        RandomFormulas formulas(20261122);

        for (int i = 0; i < SumCount / 4 && !QTest::currentTestFailed(); ++i)
            CheckLength(formulas.MakeSum(), *unit, millimetres);
    }

    void lengthIsNeverReadAsAnAngleOrOfBareParts()
    {
        RandomFormulas formulas(815);

        for (int i = 0; i < FormulaCount / 8 && !QTest::currentTestFailed(); ++i)
            CheckMixed(formulas.MakeLength(i % 3), formulas.MakeNumber(i % 3));
    }

private:
    static void CheckNumber(const RandomFormula& formula)
    {
        const TypedReading reading =
            ReadTypedText(formula.text, Quantity::Length, LengthUnit::Inch());

        QVERIFY2(reading.fault == TypedTextFault::None, qPrintable(formula.text));
        QVERIFY2(IsNearest(reading.value, formula.value), qPrintable(formula.text));
        QVERIFY2(IsNearest(reading.modelValue, formula.value * Rational(254, 10)),
                 qPrintable(formula.text));
        CheckShortest(reading.value);
    }

    static void AddUnits()
    {
        QTest::addColumn<const LengthUnit*>("unit");
        QTest::addColumn<Rational>("millimetres");

        QTest::newRow("mm") << &LengthUnit::Millimetre() << Rational(1);
        QTest::newRow("cm") << &LengthUnit::Centimetre() << Rational(10);
        QTest::newRow("m") << &LengthUnit::Metre() << Rational(1000);
        QTest::newRow("in") << &LengthUnit::Inch() << Rational(254, 10);
    }

    static void CheckLength(const RandomFormula& formula, const LengthUnit& unit,
                            const Rational& millimetres)
    {
        const TypedReading reading = ReadTypedText(formula.text, Quantity::Length, unit);

        QVERIFY2(reading.fault == TypedTextFault::None, qPrintable(formula.text));
        QVERIFY2(IsNearest(reading.value, formula.value / millimetres), qPrintable(formula.text));
        QVERIFY2(IsNearest(reading.modelValue, formula.value), qPrintable(formula.text));
        CheckShortest(reading.value);
    }

    static void CheckMixed(const RandomFormula& length, const RandomFormula& number)
    {
        const LengthUnit& unit = LengthUnit::Millimetre();
        const QString mixed = '(' + length.text + ")+(" + number.text + ')';

        QVERIFY2(ReadTypedText(length.text, Quantity::Angle, unit).fault ==
                     TypedTextFault::WrongQuantity,
                 qPrintable(length.text));
        QVERIFY2(ReadTypedText(mixed, Quantity::Length, unit).fault == TypedTextFault::MixedUnits,
                 qPrintable(mixed));
    }

    static void CheckShortest(double value)
    {
        const QString text = ShortestNumber(value);

        QVERIFY2(text.toDouble() == value, qPrintable(text));
        QVERIFY2(IsShortest(text), qPrintable(text));
    }
};

VESK_TESTS_WITHOUT_WINDOWS(RandomFormulaTest);
#include "RandomFormulaTest.moc"
