#include "Foundation/JsonText.h"

#include "Foundation/Text.h"
#include "Support/TestValues.h"

#include <nlohmann/json.hpp>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>

Q_DECLARE_METATYPE(std::wstring)

namespace vesk
{

namespace
{

template <class Number>
std::string NumberText(Number number)
{
    std::string text;
    JsonText::AppendNumber(text, number);
    return text;
}

template <class String>
std::string StringText(const String& string)
{
    std::string text;
    JsonText::AppendString(text, string);
    return text;
}

/// Any bits: denormals, infinities and numbers that are none among them.
double AnyDouble(std::mt19937_64& random)
{
    const std::uint64_t bits = random();
    double number = 0.0;
    std::memcpy(&number, &bits, sizeof number);
    return number;
}

/// A number as drawings have it: up to six digits before the point, and from none to all after it.
double Coordinate(std::mt19937_64& random)
{
    const double number = std::ldexp(static_cast<double>(random() >> 11), -33) - 500000.0;
    const double unit = std::pow(10.0, static_cast<double>(random() % 18));
    return std::round(number * unit) / unit;
}

}

class JsonTextTest : public QObject
{
    Q_OBJECT

private slots:
    void doublesAreWrittenAsTheJsonLibraryWritesThem_data();
    void doublesAreWrittenAsTheJsonLibraryWritesThem();
    void randomDoublesAreWrittenAsTheJsonLibraryWritesThem();
    void integersAreWrittenAsTheJsonLibraryWritesThem_data();
    void integersAreWrittenAsTheJsonLibraryWritesThem();
    void stringsAreWrittenAsTheJsonLibraryWritesThem_data();
    void stringsAreWrittenAsTheJsonLibraryWritesThem();
    void everyCharacterIsWrittenAsTheJsonLibraryWritesIt();
    void invalidBytesBecomeReplacementCharacters();
    void whatTheTextHasStays();
};

void JsonTextTest::doublesAreWrittenAsTheJsonLibraryWritesThem_data()
{
    using Limits = std::numeric_limits<double>;
    QTest::addColumn<double>("number");
    for (const double number : {0.0,
                                -0.0,
                                1.0,
                                -1.0,
                                5.5,
                                0.1 + 0.2,
                                1.0 / 3.0,
                                1e15,
                                1e16,
                                123456789012345680.0,
                                1e-4,
                                1e-5,
                                1e22,
                                1e23,
                                9007199254740993.0,
                                5e-324,
                                -2.2250738585072011e-308,
                                108.68618818803983,
                                62.74999999999999,
                                Limits::max(),
                                Limits::lowest(),
                                Limits::min(),
                                Limits::denorm_min(),
                                Limits::epsilon(),
                                Limits::infinity(),
                                -Limits::infinity(),
                                Limits::quiet_NaN()})
        QTest::addRow("%.17g", number) << number;
}

void JsonTextTest::doublesAreWrittenAsTheJsonLibraryWritesThem()
{
    QFETCH(double, number);

    QCOMPARE(NumberText(number), nlohmann::json(number).dump());
}

void JsonTextTest::randomDoublesAreWrittenAsTheJsonLibraryWritesThem()
{
    std::mt19937_64 random(20261123);
    for (int i = 0; i < 100000; ++i)
    {
        const double any = AnyDouble(random);
        const double coordinate = Coordinate(random);
        QCOMPARE(NumberText(any), nlohmann::json(any).dump());
        QCOMPARE(NumberText(coordinate), nlohmann::json(coordinate).dump());
    }
}

void JsonTextTest::integersAreWrittenAsTheJsonLibraryWritesThem_data()
{
    QTest::addColumn<int>("number");
    for (const int number : {0, 1, -1, 9, 10, -10, 2000000000, std::numeric_limits<int>::max(),
                             std::numeric_limits<int>::min()})
        QTest::addRow("%d", number) << number;
}

void JsonTextTest::integersAreWrittenAsTheJsonLibraryWritesThem()
{
    QFETCH(int, number);

    QCOMPARE(NumberText(number), nlohmann::json(number).dump());
}

void JsonTextTest::stringsAreWrittenAsTheJsonLibraryWritesThem_data()
{
    QTest::addColumn<std::wstring>("string");
    QTest::newRow("empty") << std::wstring();
    QTest::newRow("plain") << std::wstring(L"Sketcher.Line 1.5 ~");
    QTest::newRow("quote") << std::wstring(L"a \"b\" c");
    QTest::newRow("backslash") << std::wstring(L"a\\b");
    QTest::newRow("solidus") << std::wstring(L"a/b");
    QTest::newRow("control characters") << std::wstring(L"\b\f\n\r\t\x01\x1b\x1f");
    QTest::newRow("zero") << std::wstring(3, L'\0');
    QTest::newRow("delete") << std::wstring(L"\x7f");
    QTest::newRow("Chinese") << std::wstring(L"图层\n直线");
    QTest::newRow("beyond the first plane") << std::wstring(L"\U0001F4D0");
    QTest::newRow("half a pair") << std::wstring{L'a', static_cast<wchar_t>(0xD83D), L'b'};
    QTest::newRow("line separator") << std::wstring(L"\u2028");
}

void JsonTextTest::stringsAreWrittenAsTheJsonLibraryWritesThem()
{
    QFETCH(std::wstring, string);
    const std::string utf8 = ToUtf8(string);

    QCOMPARE(StringText(std::wstring_view(string)), nlohmann::json(utf8).dump());
    QCOMPARE(StringText(std::string_view(utf8)), nlohmann::json(utf8).dump());
}

void JsonTextTest::everyCharacterIsWrittenAsTheJsonLibraryWritesIt()
{
    for (int character = 0; character < 0x10000; ++character)
    {
        const std::wstring string(1, static_cast<wchar_t>(character));
        QCOMPARE(StringText(std::wstring_view(string)), nlohmann::json(ToUtf8(string)).dump());
    }
}

void JsonTextTest::invalidBytesBecomeReplacementCharacters()
{
    QCOMPARE(StringText(std::string_view("a\xFFz")), std::string("\"a\xEF\xBF\xBDz\""));
}

void JsonTextTest::whatTheTextHasStays()
{
    std::string text = "[";

    JsonText::AppendNumber(text, 1);
    JsonText::AppendNumber(text, 0.5);
    JsonText::AppendString(text, std::wstring_view(L"a"));
    JsonText::AppendString(text, std::string_view("\t"));

    QCOMPARE(text, std::string("[10.5\"a\"\"\\t\""));
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::JsonTextTest);
#include "JsonTextTest.moc"
