#include "HostUi/TypedText.h"

#include "Dimension/LengthUnit.h"

#include "Support/TestValues.h"

#include <QRegularExpression>
#include <QStringList>

using namespace vesk;

Q_DECLARE_METATYPE(const LengthUnit*)
Q_DECLARE_METATYPE(TypedTextFault)

namespace
{

QString FeetAndInches(int inches)
{
    const QString feet = QString::number(inches / 12) + '\'';
    const QString rest = QString::number(inches % 12) + '"';
    return inches < 12 ? rest : (inches % 12 == 0 ? feet : feet + rest);
}

}

/// How exact the values of clear texts are. Numbers are compared bit for bit.
class TypedTextExactTest final : public QObject
{
    Q_OBJECT

private slots:
    /// All texts of up to five of the characters that a number is made of.
    void aNumberIsPlainAsThePatternSays()
    {
        static const QRegularExpression s_pattern(
            R"(\A *[+-]?([0-9]+\.?[0-9]*|\.[0-9]+)([eE][+-]?[0-9]+)? *\z)");
        const QString characters = "05.,eE+- ";
        int plainCount = 0;
        QStringList texts{QString()};
        for (int i = 0; i < texts.size(); ++i)
        {
            const QString text = texts[i];
            const TypedReading reading =
                ReadTypedText(text, Quantity::Length, LengthUnit::Millimetre());
            const bool isTooLarge = reading.fault == TypedTextFault::NoValue;
            const bool isPlain = s_pattern.match(text).hasMatch() && !isTooLarge;
            QVERIFY2(reading.isPlain == isPlain, qPrintable(text));
            if (isPlain)
                QCOMPARE(reading.value, text.toDouble());
            plainCount += isPlain ? 1 : 0;
            for (int k = 0; text.size() < 5 && k < characters.size(); ++k)
                texts << text + characters[k];
        }
        QVERIFY(plainCount > 1000);
    }

    void modelValueIsRoundedOnce_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<const LengthUnit*>("unit");
        QTest::addColumn<double>("value");

        const auto add = [](const char* text, const LengthUnit& unit, double value) {
            QTest::newRow(text) << QString::fromUtf8(text) << &unit << value;
        };
        add("1'6\"", LengthUnit::Millimetre(), 457.2);
        add("1.1", LengthUnit::Inch(), 27.94);
        add("1mm", LengthUnit::Inch(), 1.0);
        add("100/3 mm", LengthUnit::Inch(), 100.0 / 3.0);
        add("1.001", LengthUnit::Metre(), 1001.0);
        add("4.35", LengthUnit::Centimetre(), 43.5);
        add("0.1+0.2", LengthUnit::Millimetre(), 0.3);
        add("3*1.1", LengthUnit::Millimetre(), 3.3);
        add("1.1^2", LengthUnit::Millimetre(), 1.21);
        add("1/49*49", LengthUnit::Millimetre(), 1.0);
        add("1-0.9", LengthUnit::Metre(), 100.0);
        add("abs(0.1-0.3)", LengthUnit::Millimetre(), 0.2);
        add("abs(0.1)+abs(0.2)", LengthUnit::Millimetre(), 0.3);
        add("1.1*1.1*cos(0d)", LengthUnit::Millimetre(), 1.21);
        add("1/3", LengthUnit::Inch(), 127.0 / 15.0);
        add("1.1in+0.1in", LengthUnit::Inch(), 30.48);
    }

    void modelValueIsRoundedOnce()
    {
        QFETCH(QString, text);
        QFETCH(const LengthUnit*, unit);
        QFETCH(double, value);

        const TypedReading reading = ReadTypedText(text, Quantity::Length, *unit);

        QCOMPARE(reading.fault, TypedTextFault::None);
        QCOMPARE(ShortestNumber(reading.modelValue), ShortestNumber(value));
    }

    void wholeFeetAndInchesAreExact_data()
    {
        QTest::addColumn<const LengthUnit*>("unit");
        QTest::addColumn<int>("inch");
        QTest::addColumn<int>("below");

        QTest::newRow("mm") << &LengthUnit::Millimetre() << 254 << 10;
        QTest::newRow("cm") << &LengthUnit::Centimetre() << 254 << 100;
        QTest::newRow("m") << &LengthUnit::Metre() << 254 << 10000;
        QTest::newRow("in") << &LengthUnit::Inch() << 1 << 1;
    }

    void wholeFeetAndInchesAreExact()
    {
        QFETCH(const LengthUnit*, unit);
        QFETCH(int, inch);
        QFETCH(int, below);
        constexpr int MostInches = 40 * 12 + 11;

        for (int inches = 1; inches <= MostInches; ++inches)
        {
            const QString text = FeetAndInches(inches);
            const TypedReading reading = ReadTypedText(text, Quantity::Length, *unit);

            // A quotient of two integers is rounded once.
            QVERIFY2(reading.modelValue == inches * 254 / 10.0, qPrintable(text));
            QVERIFY2(reading.value == inches * inch / static_cast<double>(below), qPrintable(text));
        }
    }

    void zeroHasNoSign_data()
    {
        QTest::addColumn<QString>("text");

        for (const char* text : {"-0", "-0.0", "30*cos(90d)", "0*-1", "-30*sin(180d)", "-(5-5)"})
            QTest::newRow(text) << text;
    }

    void zeroHasNoSign()
    {
        QFETCH(QString, text);

        const TypedReading reading = ReadTypedText(text, Quantity::Length, LengthUnit::Inch());

        QCOMPARE(ShortestNumber(reading.value), QString("0"));
        QCOMPARE(ShortestNumber(reading.modelValue), QString("0"));
    }

    void functionOfAUsualAngleIsTheNearestDouble_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("value");

        const auto add = [](const char* text, double value) {
            QTest::newRow(text) << QString::fromUtf8(text) << value;
        };
        add("sin(15d)", 0.25881904510252076);
        add("sin(60d)", 0.8660254037844386);
        add("cos(30d)", 0.8660254037844386);
        add("cos(45d)", 0.7071067811865476);
        add("tan(15d)", 0.2679491924311227);
        add("tan(30d)", 0.5773502691896257);
        add("tan(60d)", 1.7320508075688772);
        add("100*sin(45d/3)", 25.881904510252074);
        add("sin(0.1d*150)", 0.25881904510252076);
        add("50*sin(390d)", 25.0);
    }

    void functionOfAUsualAngleIsTheNearestDouble()
    {
        QFETCH(QString, text);
        QFETCH(double, value);

        const TypedReading reading =
            ReadTypedText(text, Quantity::Length, LengthUnit::Millimetre());

        QCOMPARE(ShortestNumber(reading.value), ShortestNumber(value));
    }

    void exactArithmeticHasItsLimits_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<TypedTextFault>("fault");

        const auto add = [](const char* text, TypedTextFault fault) {
            QTest::newRow(text) << QString::fromUtf8(text) << fault;
        };
        add("1e300000", TypedTextFault::NoValue);
        add("2*1e300000", TypedTextFault::NoValue);
        add("1e99999999999", TypedTextFault::NoValue);
        add("1e-300000*2", TypedTextFault::NoValue);
        add("0e300000", TypedTextFault::None);
        add("2*0e-99999999999", TypedTextFault::None);
        add("10^300000", TypedTextFault::NoValue);
        add("10^-300000", TypedTextFault::None);
        add("10^1e300", TypedTextFault::NoValue);
        add("0^-1", TypedTextFault::NoValue);
        add("1.000001^99999", TypedTextFault::None);
        add("(((9^99)^99)^99)^99", TypedTextFault::NoValue);
        add("10^400/10^399", TypedTextFault::NoValue);
        // The last power, the last fraction that are still exact.
        add("(1/2)^5000/(1/2)^5000", TypedTextFault::None);
        add("(1/2)^5001/(1/2)^5001", TypedTextFault::NoValue);
        add("1/((1/2)^4999*(1/2)^4999*(1/2)*0+1)", TypedTextFault::None);
        add("1/((1/2)^4999*(1/2)^4999*(1/4)*0+1)", TypedTextFault::NoValue);
        QTest::newRow("many small numbers")
            << QStringLiteral("1e-300*").repeated(9) + "1" << TypedTextFault::None;
        QTest::newRow("more small numbers than anybody needs")
            << QStringLiteral("1e-300*").repeated(12) + "1" << TypedTextFault::NoValue;
    }

    void exactArithmeticHasItsLimits()
    {
        QFETCH(QString, text);
        QFETCH(TypedTextFault, fault);

        QCOMPARE(ReadTypedText(text, Quantity::Length, LengthUnit::Millimetre()).fault, fault);
    }
};

VESK_TESTS_WITHOUT_WINDOWS(TypedTextExactTest);
#include "TypedTextExactTest.moc"
