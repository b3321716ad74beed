#include "Support/TestValues.h"
#include "TemporaryDimensionHandlersImpl/TwoFields.h"
#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/DimensionKeys.h"
#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/DimensionKind.h"

#include <QKeyEvent>

Q_DECLARE_METATYPE(vesk::OpeningKeys)

namespace vesk::test
{
namespace
{

/// The sets of keys, and whether one of them is in each.
struct KeySets
{
    const char* name;
    int key;
    bool isDigit;
    bool isKeypadDigit;
    bool isLetter;
    bool isMinus;
    bool isComma;
};

const KeySets Sets[]{
    {"before 0", 47, false, false, false, false, false},
    {"0", 48, true, false, false, false, false},
    {"9", 57, true, false, false, false, false},
    {"behind 9", 58, false, false, false, false, false},
    {"before A", 64, false, false, false, false, false},
    {"A", 65, false, false, true, false, false},
    {"Z", 90, false, false, true, false, false},
    {"behind Z", 91, false, false, false, false, false},
    {"before the keypad's 0", 95, false, false, false, false, false},
    {"keypad 0", 96, false, true, false, false, false},
    {"keypad 9", 105, false, true, false, false, false},
    {"behind the keypad's 9", 106, false, false, false, false, false},
    {"comma as a character", 44, false, false, false, false, true},
    {"minus as a character", 45, false, false, false, true, false},
    {"keypad plus", 107, false, false, false, false, false},
    {"keypad separator", 108, false, false, false, false, false},
    {"keypad minus", 109, false, false, false, true, false},
    {"keypad point", 110, false, false, false, false, false},
    {"plus", 187, false, false, false, false, false},
    {"comma", 188, false, false, false, false, true},
    {"minus", 189, false, false, false, true, false},
    {"point", 190, false, false, false, false, false},
};

}

/// What keys mean to a kind.
class DimensionOpeningTest : public QObject
{
    Q_OBJECT

private slots:
    void modifiersAreTheHostsFlags_data();
    void modifiersAreTheHostsFlags();
    void keysBelongToTheirSets_data();
    void keysBelongToTheirSets();
    void keysOpenWithTheirText_data();
    void keysOpenWithTheirText();
    void setsOfOpeningKeysGrow_data();
    void setsOfOpeningKeysGrow();
    void fieldIsFoundByItsState();
    void openingIsThatOfTheKey_data();
    void openingIsThatOfTheKey();
};

void DimensionOpeningTest::modifiersAreTheHostsFlags_data()
{
    QTest::addColumn<bool>("isCtrl");
    QTest::addColumn<bool>("isAlt");
    QTest::addColumn<bool>("isShift");
    QTest::addColumn<int>("modifiers");
    QTest::newRow("none") << false << false << false << int(Qt::NoModifier);
    QTest::newRow("Ctrl") << true << false << false << int(Qt::ControlModifier);
    QTest::newRow("Alt") << false << true << false << int(Qt::AltModifier);
    QTest::newRow("Shift") << false << false << true << int(Qt::ShiftModifier);
    QTest::newRow("all") << true << true << true
                         << int(Qt::ControlModifier | Qt::AltModifier | Qt::ShiftModifier);
}

void DimensionOpeningTest::modifiersAreTheHostsFlags()
{
    QFETCH(bool, isCtrl);
    QFETCH(bool, isAlt);
    QFETCH(bool, isShift);
    QFETCH(int, modifiers);

    QCOMPARE(int(ToQtModifiers(isCtrl, isAlt, isShift)), modifiers);
}

void DimensionOpeningTest::keysBelongToTheirSets_data()
{
    QTest::addColumn<int>("row");
    for (int i = 0; i < int(std::size(Sets)); ++i)
        QTest::newRow(Sets[i].name) << i;
}

void DimensionOpeningTest::keysBelongToTheirSets()
{
    QFETCH(int, row);
    const KeySets& expected = Sets[row];

    QCOMPARE(IsDigitKey(expected.key), expected.isDigit);
    QCOMPARE(IsKeypadDigitKey(expected.key), expected.isKeypadDigit);
    QCOMPARE(IsLetterKey(expected.key), expected.isLetter);
    QCOMPARE(IsMinusKey(expected.key), expected.isMinus);
    QCOMPARE(IsCommaKey(expected.key), expected.isComma);
}

void DimensionOpeningTest::keysOpenWithTheirText_data()
{
    keysBelongToTheirSets_data();
}

void DimensionOpeningTest::keysOpenWithTheirText()
{
    QFETCH(int, row);
    const KeySets& key = Sets[row];
    const QKeyEvent event(QEvent::KeyPress, key.key, Qt::NoModifier, "x");
    const int digit = key.isDigit ? key.key - 48 : key.key - 96;
    const std::optional<QString> none;
    const bool isDigit = key.isDigit || key.isKeypadDigit;
    const std::optional<QString> digits = isDigit ? QString::number(digit) : none;
    const std::optional<QString> minus = key.isMinus ? QString("-") : digits;
    const std::optional<QString> letters = key.isLetter ? QString("x") : minus;

    QCOMPARE(OpeningText(event, OpeningKeys::Digits), digits);
    QCOMPARE(OpeningText(event, OpeningKeys::DigitsAndMinus), minus);
    QCOMPARE(OpeningText(event, OpeningKeys::AllCharacters), letters);
    const bool isCode = key.key != '-' && key.key != ',';
    QCOMPARE(IsTakenFromView(key.key, OpeningKeys::Digits), isDigit);
    QCOMPARE(IsTakenFromView(key.key, OpeningKeys::DigitsAndMinus),
             isDigit || (isCode && key.isMinus));
    QCOMPARE(IsTakenFromView(key.key, OpeningKeys::AllCharacters),
             isDigit || key.isLetter || (isCode && (key.isMinus || key.isComma)));
}

void DimensionOpeningTest::setsOfOpeningKeysGrow_data()
{
    QTest::addColumn<OpeningKeys>("keys");
    QTest::addColumn<bool>("hasMinus");
    QTest::addColumn<bool>("hasLetters");
    QTest::newRow("digits") << OpeningKeys::Digits << false << false;
    QTest::newRow("minus") << OpeningKeys::DigitsAndMinus << true << false;
    QTest::newRow("all") << OpeningKeys::AllCharacters << true << true;
}

void DimensionOpeningTest::setsOfOpeningKeysGrow()
{
    QFETCH(OpeningKeys, keys);
    QFETCH(bool, hasMinus);
    QFETCH(bool, hasLetters);

    QCOMPARE(HasMinus(keys), hasMinus);
    QCOMPARE(HasLetters(keys), hasLetters);
    QCOMPARE(HasComma(keys), hasLetters);
}

void DimensionOpeningTest::fieldIsFoundByItsState()
{
    DimensionKind kind;
    kind.fields[0].state = InputState::IS_Radius;

    QCOMPARE(FindField(kind, InputState::IS_Radius), &kind.fields[0]);
    QVERIFY(FindField(kind, InputState::IS_Length) == nullptr);
    QVERIFY(FindField(kind, InputState::IS_None) == nullptr);
    kind.fields[1].state = InputState::IS_Height;
    QCOMPARE(FindField(kind, InputState::IS_Height), &kind.fields[1]);
}

void DimensionOpeningTest::openingIsThatOfTheKey_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<bool>("switches");
    QTest::addColumn<int>("state"); ///< 0: none.
    QTest::addColumn<bool>("useGivenText");
    QTest::addColumn<QString>("text");
    const int shift = int(Qt::ShiftModifier);
    const int shiftAndCtrl = int(Qt::ShiftModifier | Qt::ControlModifier);
    QTest::newRow("digit") << int('7') << 0 << true << 5 << true << "7";
    QTest::newRow("digit with Shift") << int('7') << shift << true << 5 << true << "7";
    QTest::newRow("Shift and comma") << 188 << shift << true << 2 << false << "";
    QTest::newRow("Shift, Ctrl and comma") << 188 << shiftAndCtrl << true << 2 << false << "";
    QTest::newRow("character") << int(',') << shift << true << 2 << false << "";
    QTest::newRow("comma") << 188 << 0 << true << 0 << false << "";
    QTest::newRow("Ctrl and comma") << 188 << int(Qt::ControlModifier) << true << 0 << false << "";
    QTest::newRow("one field") << 188 << shift << false << 0 << false << "";
}

void DimensionOpeningTest::openingIsThatOfTheKey()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(bool, switches);
    QFETCH(int, state);
    QFETCH(bool, useGivenText);
    QFETCH(QString, text);
    DimensionKind kind = TwoFields();
    kind.switchesWithTab = switches;
    const QKeyEvent event(QEvent::KeyPress, key, Qt::KeyboardModifiers(modifiers), "x");

    const std::optional<FieldRequest> opening = FindOpening(kind, event);

    QCOMPARE(opening.has_value(), state != 0);
    const FieldRequest request = opening.value_or(FieldRequest{InputState(0), false, false, L""});
    QCOMPARE(int(request.state), state);
    QVERIFY(!request.editorReady);
    QCOMPARE(request.useGivenText, useGivenText);
    QCOMPARE(request.text, text.toStdWString());
}

}

VESK_TESTS(vesk::test::DimensionOpeningTest);
#include "DimensionOpeningTest.moc"
