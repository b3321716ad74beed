#include "Foundation/Text.h"

#include "Foundation/WideText.h"
#include "Support/TestValues.h"

Q_DECLARE_METATYPE(std::string)
Q_DECLARE_METATYPE(std::wstring)
Q_DECLARE_METATYPE(std::u16string)

namespace vesk
{

class TextTest : public QObject
{
    Q_OBJECT

private slots:
    void textSurvivesBothWays_data();
    void textSurvivesBothWays();
    void textOfTwoByteUnitsSurvivesBothWays_data();
    void textOfTwoByteUnitsSurvivesBothWays();
    void zeroCharactersAreKept();
    void aLoneSurrogateBecomesTheReplacement_data();
    void aLoneSurrogateBecomesTheReplacement();
    void aLoneSurrogateOfFourByteUnitsBecomesTheReplacement();
    void aUnitBeyondUnicodeBecomesTheReplacement_data();
    void aUnitBeyondUnicodeBecomesTheReplacement();
    void charactersAreCountedInUtf16Units();
    void whatIsNoUtf8BecomesTheReplacement_data();
    void whatIsNoUtf8BecomesTheReplacement();
};

void TextTest::textSurvivesBothWays_data()
{
    QTest::addColumn<std::wstring>("wide");
    QTest::addColumn<std::string>("utf8");

    QTest::newRow("empty") << std::wstring() << std::string();
    QTest::newRow("ascii") << std::wstring(L"a1~") << std::string("a1~");
    QTest::newRow("two bytes") << std::wstring(L"\u00e9\u07ff") << std::string("\xC3\xA9\xDF\xBF");
    QTest::newRow("three bytes") << std::wstring(L"\u4e2d\uffff")
                                 << std::string("\xE4\xB8\xAD\xEF\xBF\xBF");
    QTest::newRow("four bytes") << std::wstring(L"\U0001F600\U0010FFFF")
                                << std::string("\xF0\x9F\x98\x80\xF4\x8F\xBF\xBF");
    QTest::newRow("beside surrogates")
        << std::wstring(L"\uD7FF\uE000") << std::string("\xED\x9F\xBF\xEE\x80\x80");
}

void TextTest::textSurvivesBothWays()
{
    QFETCH(std::wstring, wide);
    QFETCH(std::string, utf8);

    QCOMPARE(ToUtf8(wide), utf8);
    QCOMPARE(FromUtf8(utf8), wide);
}

void TextTest::textOfTwoByteUnitsSurvivesBothWays_data()
{
    QTest::addColumn<std::u16string>("wide");
    QTest::addColumn<std::string>("utf8");

    QTest::newRow("empty") << std::u16string() << std::string();
    QTest::newRow("ascii") << std::u16string(u"a1~") << std::string("a1~");
    QTest::newRow("three bytes") << std::u16string(u"\u4e2d\uffff")
                                 << std::string("\xE4\xB8\xAD\xEF\xBF\xBF");
    QTest::newRow("pairs") << std::u16string(u"\U00010000\U0001F600\U0010FFFF")
                           << std::string("\xF0\x90\x80\x80\xF0\x9F\x98\x80\xF4\x8F\xBF\xBF");
}

void TextTest::textOfTwoByteUnitsSurvivesBothWays()
{
    QFETCH(std::u16string, wide);
    QFETCH(std::string, utf8);

    QCOMPARE(WideToUtf8<char16_t>(wide), utf8);
    QCOMPARE(Utf8ToWide<char16_t>(utf8), wide);
}

void TextTest::zeroCharactersAreKept()
{
    const std::wstring wide(L"a\0b", 3);

    QCOMPARE(ToUtf8(wide), std::string("a\0b", 3));
    QCOMPARE(FromUtf8(std::string("a\0b", 3)), wide);
}

void TextTest::aLoneSurrogateBecomesTheReplacement_data()
{
    QTest::addColumn<std::u16string>("wide");
    QTest::addColumn<std::string>("utf8");

    const std::string replacement("\xEF\xBF\xBD");
    QTest::newRow("high alone") << std::u16string(1, char16_t{0xD83D}) << replacement;
    QTest::newRow("low alone") << std::u16string(1, char16_t{0xDE00}) << replacement;
    QTest::newRow("high, then a letter") << std::u16string{0xD83D, u'a'} << replacement + "a";
    QTest::newRow("high, then a pair")
        << std::u16string{0xD83D, 0xD83D, 0xDE00} << replacement + "\xF0\x9F\x98\x80";
    QTest::newRow("low twice") << std::u16string{0xDE00, 0xDE00} << replacement + replacement;
    QTest::newRow("low before high") << std::u16string{0xDE00, 0xD83D} << replacement + replacement;
}

void TextTest::aLoneSurrogateBecomesTheReplacement()
{
    QFETCH(std::u16string, wide);
    QFETCH(std::string, utf8);

    QCOMPARE(WideToUtf8<char16_t>(wide), utf8);
}

void TextTest::aLoneSurrogateOfFourByteUnitsBecomesTheReplacement()
{
    const std::u32string wide{U'a', 0xD83D, 0xDFFF, U'b'};

    QCOMPARE(WideToUtf8<char32_t>(wide), std::string("a\xEF\xBF\xBD\xEF\xBF\xBD"
                                                     "b"));
}

void TextTest::aUnitBeyondUnicodeBecomesTheReplacement_data()
{
    QTest::addColumn<std::string>("utf8");

    const std::u32string wide{0x110000, 0xFFFFFFFF, 0x80000000};
    QTest::newRow("char32_t") << WideToUtf8<char32_t>(wide);
    // A two-byte unit cannot hold a value beyond Unicode.
    if constexpr (sizeof(wchar_t) == sizeof(char32_t))
        QTest::newRow("wchar_t") << ToUtf8(std::wstring(wide.begin(), wide.end()));
}

void TextTest::aUnitBeyondUnicodeBecomesTheReplacement()
{
    QFETCH(std::string, utf8);

    QCOMPARE(utf8, std::string("\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD"));
}

namespace
{

/// The number of UTF-16 units of each character of a text.
template <class Wide>
QVector<int> CountUnits(const std::basic_string<Wide>& text)
{
    QVector<int> units;
    for (std::size_t index = 0; index < text.size();)
        units << TakeUtf16Units<Wide>(text, index);
    return units;
}

}

void TextTest::charactersAreCountedInUtf16Units()
{
    const QVector<int> expected{1, 2, 1, 2};

    QCOMPARE(CountUnits<char16_t>(u"a\U00010000\uffff\U0010FFFF"), expected);
    QCOMPARE(CountUnits<char32_t>(U"a\U00010000\uffff\U0010FFFF"), expected);
    QCOMPARE(CountUnits<wchar_t>(L"a\U00010000\uffff\U0010FFFF"), expected);
    QCOMPARE(CountUnits<char16_t>({0xD83D, u'a', 0xDE00}), (QVector<int>{1, 1, 1}));
}

void TextTest::whatIsNoUtf8BecomesTheReplacement_data()
{
    QTest::addColumn<std::string>("utf8");
    QTest::addColumn<std::wstring>("wide");

    QTest::newRow("trail byte alone") << std::string("a\x80z") << std::wstring(L"a\uFFFDz");
    QTest::newRow("byte of no sequence") << std::string("a\xFFz") << std::wstring(L"a\uFFFDz");
    QTest::newRow("cut at the end") << std::string("a\xE4\xB8") << std::wstring(L"a\uFFFD");
    QTest::newRow("cut by a letter") << std::string("\xE4\xB8z") << std::wstring(L"\uFFFDz");
    QTest::newRow("overlong") << std::string("a\xC0\xAFz") << std::wstring(L"a\uFFFDz");
    QTest::newRow("surrogate") << std::string("a\xED\xA0\xBDz") << std::wstring(L"a\uFFFDz");
    QTest::newRow("beyond Unicode")
        << std::string("a\xF4\x90\x80\x80z") << std::wstring(L"a\uFFFDz");
}

void TextTest::whatIsNoUtf8BecomesTheReplacement()
{
    QFETCH(std::string, utf8);
    QFETCH(std::wstring, wide);

    QCOMPARE(FromUtf8(utf8), wide);
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::TextTest);
#include "TextTest.moc"
