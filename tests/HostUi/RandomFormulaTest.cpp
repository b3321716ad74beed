#include "HostUi/RandomFormula.h"

#include "Dimension/LengthUnit.h"
#include "HostUi/TypedText.h"
#include "Support/TestValues.h"

#include <QRegularExpression>

#include <limits>

using namespace vesk;

Q_DECLARE_METATYPE(const LengthUnit*)

namespace
{

constexpr int FormulaCount = 20000;
constexpr double RoundingSteps = 64 * std::numeric_limits<double>::epsilon();

/// How many digits of a number's text tell something. What is left out at the end of a whole
/// number are zeros.
int CountDigits(QString number)
{
    static const QRegularExpression s_mute(QStringLiteral("^-?[0.]*|e.*$|\\."));
    static const QRegularExpression s_lastZeros(QStringLiteral("0+$"));
    return number.remove(s_mute).remove(s_lastZeros).size();
}

/// Whether no number of fewer digits reads back to the same double.
bool IsShortest(const QString& number)
{
    const int digits = CountDigits(number);
    const double value = number.toDouble();
    return digits <= 1 || QString::number(value, 'e', digits - 2).toDouble() != value;
}

}

/// Formulas that nobody thought of, against what they were made of.
class RandomFormulaTest final : public QObject
{
    Q_OBJECT

private slots:
    void formulaOfNumbersIsExact()
    {
        RandomFormulas formulas(20261121);

        for (int i = 0; i < FormulaCount / 2 && !QTest::currentTestFailed(); ++i)
            CheckNumber(formulas.MakeNumber(1 + i % 4));
    }

    void formulaWithUnitsIsOfTheUnitShown_data()
    {
        QTest::addColumn<const LengthUnit*>("unit");

        QTest::newRow("mm") << &LengthUnit::Millimetre();
        QTest::newRow("cm") << &LengthUnit::Centimetre();
        QTest::newRow("m") << &LengthUnit::Metre();
        QTest::newRow("in") << &LengthUnit::Inch();
    }

    void formulaWithUnitsIsOfTheUnitShown()
    {
        QFETCH(const LengthUnit*, unit);
        RandomFormulas formulas(4711);

        for (int i = 0; i < FormulaCount / 8 && !QTest::currentTestFailed(); ++i)
            CheckLength(formulas.MakeLength(i % 4), *unit);
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
        QVERIFY2(reading.value == formula.value, qPrintable(formula.text));
        CheckShortest(reading.value);
    }

    static void CheckLength(const RandomFormula& formula, const LengthUnit& unit)
    {
        const TypedReading reading = ReadTypedText(formula.text, Quantity::Length, unit);

        QVERIFY2(reading.fault == TypedTextFault::None, qPrintable(formula.text));
        QVERIFY2(qAbs(unit.ToModel(reading.value) - formula.value) <= RoundingSteps * formula.size,
                 qPrintable(formula.text));
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

QTEST_GUILESS_MAIN(RandomFormulaTest)
#include "RandomFormulaTest.moc"
