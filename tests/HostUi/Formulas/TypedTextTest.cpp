#include "HostUi/TypedText.h"

#include "Dimension/LengthUnit.h"
#include "Host/DecimalPointScope.h"
#include "Support/TestValues.h"

#include <QLocale>

#include <clocale>
#include <cmath>

using namespace vesk;

Q_DECLARE_METATYPE(Quantity)
Q_DECLARE_METATYPE(TypedTextFault)

namespace
{

const Quantity s_length = Quantity::Length;
const Quantity s_angle = Quantity::Angle;

TypedReading ReadLength(const QString& text)
{
    return ReadTypedText(text, Quantity::Length, LengthUnit::Millimetre());
}

TypedReading ReadAngle(const QString& text)
{
    return ReadTypedText(text, Quantity::Angle, LengthUnit::Millimetre());
}

void AddValue(const char* text, double value)
{
    QTest::newRow(text) << QString::fromUtf8(text) << value;
}

void AddFault(const char* text, TypedTextFault fault)
{
    QTest::newRow(qPrintable(QString::fromUtf8(text) + QStringLiteral(" ")))
        << QString::fromUtf8(text) << fault;
}

}

/// Which texts are clear, their values, and which are not clear.
class TypedTextTest final : public QObject
{
    Q_OBJECT

private slots:
    void plainNumberStaysAsItIs_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("value");

        AddValue("125.5", 125.5);
        AddValue("007.5", 7.5);
        AddValue(".5", 0.5);
        AddValue("5.", 5.0);
        AddValue("+5", 5.0);
        AddValue("-45", -45.0);
        AddValue("1e3", 1000.0);
        AddValue("2.5E-3", 0.0025);
        AddValue("1.000", 1.0);
        AddValue(" 30 ", 30.0);
        AddValue("0", 0.0);
    }

    void plainNumberStaysAsItIs()
    {
        QFETCH(QString, text);
        QFETCH(double, value);

        const TypedReading reading = ReadLength(text);

        QCOMPARE(reading.fault, TypedTextFault::None);
        QCOMPARE(reading.value, value);
        QVERIFY(reading.isPlain);
        QCOMPARE(text.toDouble(), value);
    }

    void clearLengthHasItsValue_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("value");

        AddValue("20+2", 22.0);
        AddValue("20 + 2", 22.0);
        AddValue("7-2-1", 4.0);
        AddValue("2*(3+4)", 14.0);
        AddValue("100/8/2", 6.25);
        AddValue("2+3*4", 14.0);
        AddValue("2*3^2", 18.0);
        AddValue("2^-1", 0.5);
        AddValue("4^0.5", 2.0);
        AddValue("2*-3", -6.0);
        AddValue("-(2^2)", -4.0);
        AddValue("(-2)^2", 4.0);
        AddValue("+(3)", 3.0);
        AddValue("(7)", 7.0);
        AddValue("sqrt(2)*50", std::sqrt(2.0) * 50.0);
        AddValue("abs(3-10)", 7.0);
        AddValue("abs(2)+1,5", 3.5);
        AddValue("1,7e308/1e308", 1.7);
        AddValue("pi*10", std::acos(-1.0) * 10.0);
        AddValue("50*sin(30d)", 25.0);
        AddValue("50*cos(60deg)", 25.0);
        AddValue("50*cos(90d)", 0.0);
        AddValue("50*tan(45d)", 50.0);
        AddValue("50*tan(-135d)", 50.0);
        AddValue("50*sin(210d)", -25.0);
        AddValue("50*cos(-450d)", 0.0);
        AddValue("3,5", 3.5);
        AddValue("3,5*2", 7.0);
        AddValue(",5", 0.5);
        AddValue("0,500", 0.5);
        AddValue("1234,567", 1234.567);
        AddValue("12,34", 12.34);
        AddValue("1,0005", 1.0005);
        AddValue("3,5e2", 350.0);
    }

    void clearLengthHasItsValue() { CheckValue(s_length, LengthUnit::Millimetre()); }

    void unitGivesTheValueInMillimetres_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("value");

        AddValue("10cm", 100.0);
        AddValue("10 cm", 100.0);
        AddValue("1.1cm", 11.0);
        AddValue("3,5cm", 35.0);
        AddValue(".5m", 500.0);
        AddValue("5mm", 5.0);
        AddValue("5dm", 500.0);
        AddValue("2km", 2e6);
        AddValue("1e3cm", 1e4);
        AddValue("1e-3m", 1.0);
        AddValue("1in", 25.4);
        AddValue("6inch", 152.4);
        AddValue("6\"", 152.4);
        AddValue("1ft", 304.8);
        AddValue("1/2in", 12.7);
        AddValue("3/8\"", 9.525);
        AddValue("10'", 3048.0);
        AddValue("10'6\"", 3200.4);
        AddValue("10' 6\"", 3200.4);
        AddValue("10'1/2\"", 3060.7);
        AddValue("10ft6in", 3200.4);
        AddValue("-10'6\"", -3200.4);
        AddValue("10'-(6\")", 2895.6);
        AddValue("2*10'6\"", 6400.8);
        AddValue("2*3cm", 60.0);
        AddValue("3cm*2", 60.0);
        AddValue("10cm/4", 25.0);
        AddValue("1m+5cm", 1050.0);
        AddValue("1m-5cm", 950.0);
        AddValue("(1+2)cm", 30.0);
        AddValue("sqrt(4)cm", 20.0);
        AddValue("2*(1m+5cm)", 2100.0);
        AddValue("sqrt((3cm)^2+(4cm)^2)", 50.0);
        AddValue("(6cm)^2/3cm", 120.0);
        AddValue("6cm*2cm/3cm", 40.0);
        AddValue("1m*sin(30d)", 500.0);
        AddValue("abs(2cm-5cm)", 30.0);
    }

    void unitGivesTheValueInMillimetres() { CheckValue(s_length, LengthUnit::Millimetre()); }

    void valueIsInTheUnitShown_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("value");

        AddValue("20+2", 22.0);
        AddValue("25.4mm", 1.0);
        AddValue("2.54cm", 1.0);
        AddValue("1/2in", 0.5);
        AddValue("1'", 12.0);
        AddValue("10cm", 100.0 / 25.4);
        AddValue("1/2in+12.7mm", 1.0);
    }

    void valueIsInTheUnitShown() { CheckValue(s_length, LengthUnit::Inch()); }

    void clearAngleHasItsValue_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("value");

        AddValue("30d", 30.0);
        AddValue("30deg", 30.0);
        AddValue("30\xc2\xb0", 30.0);
        AddValue("22,5\xc2\xb0", 22.5);
        AddValue("-45d", -45.0);
        AddValue("90/4", 22.5);
        AddValue("90d/4", 22.5);
        AddValue("45d+15d", 60.0);
        AddValue("1/2d", 0.5);
        AddValue("(30+15)d", 45.0);
        AddValue("atan(1)", 45.0);
        AddValue("asin(0.5)", 30.0);
        AddValue("acos(0.5)", 60.0);
        AddValue("acos(-1)", 180.0);
        AddValue("atan(3cm/3cm)", 45.0);
        AddValue("atan(1)+15d", 60.0);
        AddValue("atan(3/4)", 36.86989764584402);
        AddValue("asin(sqrt(3)/2)", 60.0);
        AddValue("acos(sqrt(2)/2)", 45.0);
        AddValue("acos(-sqrt(3)/2)", 150.0);
        AddValue("atan(sqrt(3))", 60.0);
        AddValue("atan(1/sqrt(3))", 30.0);
        AddValue("asin(sin(15d))", 15.0);
        AddValue("acos(cos(75d))", 75.0);
        AddValue("atan(tan(37d))", 37.0);
        AddValue("asin(-1)", -90.0);
    }

    void clearAngleHasItsValue() { CheckValue(s_angle, LengthUnit::Millimetre()); }

    void unclearLengthIsAFault_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<TypedTextFault>("fault");

        AddNoNumbers();
        AddUnknownNames();
        AddCommas();
        AddTwoReadings();
        AddWrongUnits();
        AddWithoutValue();
    }

    void unclearLengthIsAFault()
    {
        QFETCH(QString, text);
        QFETCH(TypedTextFault, fault);

        const TypedReading reading = ReadLength(text);

        QCOMPARE(reading.fault, fault);
        QCOMPARE(reading.value, 0.0);
        QVERIFY(!DescribeFault(fault).isEmpty());
    }

    void unclearAngleIsAFault_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<TypedTextFault>("fault");

        AddFault("10cm", TypedTextFault::WrongQuantity);
        AddFault("6\"", TypedTextFault::WrongQuantity);
        AddFault("30'", TypedTextFault::WrongQuantity);
        AddFault("30d15'", TypedTextFault::NotANumber);
        AddFault("45d+15", TypedTextFault::MixedUnits);
        AddFault("45d+1cm", TypedTextFault::MixedUnits);
        AddFault("30d*2d", TypedTextFault::MixedUnits);
        AddFault("30d/10d", TypedTextFault::MixedUnits);
        AddFault("10cm/2cm", TypedTextFault::MixedUnits);
        AddFault("pi/2", TypedTextFault::AngleUnit);
        AddFault("atan(pi)", TypedTextFault::AngleUnit);
        AddFault("sin(30)", TypedTextFault::AngleUnit);
        AddFault("30rad", TypedTextFault::UnknownName);
        AddFault("asin(2)", TypedTextFault::NoValue);
    }

    void unclearAngleIsAFault()
    {
        QFETCH(QString, text);
        QFETCH(TypedTextFault, fault);

        QCOMPARE(ReadAngle(text).fault, fault);
    }

    void noLocaleChangesAReading_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("value");

        AddValue("3.5", 3.5);
        AddValue("3,5", 3.5);
        AddValue("1.5cm", 15.0);
        AddValue("2*1.25+0.5", 3.0);
        AddValue("sqrt(6.25)", 2.5);
    }

    void noLocaleChangesAReading()
    {
        QFETCH(QString, text);
        QFETCH(double, value);
        const DecimalPointScope comma(",");
        QLocale::setDefault(QLocale(QLocale::German));

        const TypedReading reading = ReadLength(text);
        const QString shown = ShortestNumber(value);

        QLocale::setDefault(QLocale::c());
        QCOMPARE(localeconv()->decimal_point, ",");
        QCOMPARE(reading.fault, TypedTextFault::None);
        QCOMPARE(reading.value, value);
        QCOMPARE(shown.toDouble(), value);
    }

    void textOfSeveralScreensIsNoFormula_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<TypedTextFault>("fault");

        QTest::newRow("as long as can be")
            << QStringLiteral("1+").repeated(149) + "1" << TypedTextFault::None;
        QTest::newRow("as deep as can be")
            << QString(149, '(') + "1" + QString(149, ')') << TypedTextFault::None;
        QTest::newRow("too long") << QStringLiteral("1+").repeated(150) + "1"
                                  << TypedTextFault::NotANumber;
        QTest::newRow("much too deep") << QString(100000, '(') << TypedTextFault::NotANumber;
    }

    void textOfSeveralScreensIsNoFormula()
    {
        QFETCH(QString, text);
        QFETCH(TypedTextFault, fault);

        QCOMPARE(ReadLength(text).fault, fault);
    }

    void shortestNumberIsReadable_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("value");

        AddValue("100", 100.0);
        AddValue("0.1", 0.1);
        AddValue("-12.7", -12.7);
        AddValue("1000000", 1e6);
        AddValue("0.000001", 1e-6);
        AddValue("70.71067811865476", std::sqrt(2.0) * 50.0);
        AddValue("0", 0.0);
        AddValue("999999999999999", 999999999999999.0);
        AddValue("1e+15", 1e15);
        AddValue("1.5e+15", 1.5e15);
        AddValue("0.0000001", 1e-7);
        AddValue("1e+300", 1e300);
        AddValue("1e-09", 1e-9);
    }

    void shortestNumberIsReadable()
    {
        QFETCH(QString, text);
        QFETCH(double, value);

        QCOMPARE(ShortestNumber(value), text);
        QCOMPARE(text.toDouble(), value);
    }

private:
    static void CheckValue(Quantity quantity, const LengthUnit& unit)
    {
        QFETCH(QString, text);
        QFETCH(double, value);

        const TypedReading reading = ReadTypedText(text, quantity, unit);

        QCOMPARE(reading.fault, TypedTextFault::None);
        QVERIFY2(reading.value == value, qPrintable(ShortestNumber(reading.value)));
        QVERIFY(!reading.isPlain);
    }

    static void AddNoNumbers()
    {
        constexpr TypedTextFault Fault = TypedTextFault::NotANumber;
        for (const char* text : {"",
                                 " ",
                                 "+",
                                 "-",
                                 ".",
                                 "1 2",
                                 "1 000",
                                 "1..2",
                                 "1.2.3",
                                 "5--3",
                                 "5+-3",
                                 "2**3",
                                 "2(3)",
                                 "(2)(3)",
                                 "(2",
                                 "2)",
                                 "()",
                                 "2+",
                                 "*2",
                                 "a=5",
                                 "=5",
                                 "5%",
                                 "5!",
                                 "1;2",
                                 "1_000",
                                 "_pi*2",
                                 "5#",
                                 "5{",
                                 "10'6",
                                 "10'6cm",
                                 "cm",
                                 "sqrt",
                                 "sqrt 2",
                                 "sin30",
                                 "1?2:3",
                                 "1<2",
                                 "1&&1",
                                 "2^3cm",
                                 "\xef\xbc\x95",
                                 "\xe2\x88\x92"
                                 "5",
                                 "\xc2\xbd",
                                 "5\xc2\xb2"})
            AddFault(text, Fault);
    }

    static void AddUnknownNames()
    {
        constexpr TypedTextFault Fault = TypedTextFault::UnknownName;
        for (const char* text :
             {"abc",    "nan",     "inf",    "0x10",   "5e",     "2e",     "e",
              "x",      "2pi",     "10CM",   "10M",    "10yd",   "v0",     "max(1,2)",
              "min(1)", "ln(5)",   "log(5)", "exp(1)", "sum(1)", "rnd(1)", "if(1)",
              "PI",     "Sqrt(4)", "5A",     "5Z"})
            AddFault(text, Fault);
    }

    static void AddCommas()
    {
        constexpr TypedTextFault Fault = TypedTextFault::AmbiguousComma;
        for (const char* text :
             {"1,000", "12,345", "123,456", "1,000,000", "1.000,5", "1,000.5", "3,5+1.5", "1,000mm",
              "2*1,000", "1e3,5", "1,5,3", "sqrt(2,5)", "2*sqrt((2,5))", "-1,000"})
            AddFault(text, Fault);
    }

    static void AddTwoReadings()
    {
        constexpr TypedTextFault Fault = TypedTextFault::Ambiguous;
        for (const char* text : {"-2^2", "2*-2^2", "2^3^2", "2^-3^2", "3cm^2", "sqrt(3cm^2)",
                                 "(2+3)cm^2", "10'-6\"", "10'-1/2\"", "10ft-6in"})
            AddFault(text, Fault);
    }

    static void AddWrongUnits()
    {
        for (const char* text :
             {"1m+5",       "5+1m",      "10'+6",         "2cm*3cm",         "10cm/2cm",
              "1/(2cm)",    "10/5/2in",  "sqrt(2cm)",     "sqrt(2cm)*3cm",   "(1m+2)cm",
              "2^(1cm)",    "(2cm)^0.5", "(2cm)^-1",      "(2cm)^100",       "asin(1cm)",
              "sin(1cm)",   "6-1/2\"",   "(2cm)cm",       "(1cm/1cm)cm",     "(acos(0.5))cm",
              "1.5/2in",    "1/1.5in",   "(3cm)^1.5*1cm", "(2cm)^7/(1cm)^6", "abs(3cm)/abs(1cm)",
              "2^(1cm/1cm)"})
            AddFault(text, TypedTextFault::MixedUnits);
        for (const char* text : {"30d", "30\xc2\xb0", "45d+15d", "asin(0.5)"})
            AddFault(text, TypedTextFault::WrongQuantity);
        for (const char* text : {"sin(30)", "50*cos(60)", "sin(pi/6)", "tan(1)"})
            AddFault(text, TypedTextFault::AngleUnit);
    }

    static void AddWithoutValue()
    {
        for (const char* text : {"1/0", "0/0", "1/0in", "sqrt(-1)", "1e999", "1e999cm", "10^999",
                                 "50*tan(90d)", "1e308*10", "(-8)^0.5"})
            AddFault(text, TypedTextFault::NoValue);
    }
};

VESK_TESTS_WITHOUT_WINDOWS(TypedTextTest);
#include "TypedTextTest.moc"
