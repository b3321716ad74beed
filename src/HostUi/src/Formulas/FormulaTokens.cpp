#include "Formulas/FormulaTokens.h"

#include <charconv>
#include <string>
#include <system_error>

namespace vesk
{
namespace
{

/// Nobody types a text of several screens.
constexpr int LongestText = 300;

/// Where the parts of a number end in a text; they follow one another.
struct NumberParts
{
    int whole;
    int mark; ///< A point or a comma, or nothing.
    int fraction;
    int exponentMark;
    int exponent;
};

bool IsAt(const QString& text, int position, QLatin1String characters)
{
    return position < text.size() && characters.contains(text[position]);
}

int SkipDigits(const QString& text, int position)
{
    while (position < text.size() && text[position] >= QLatin1Char('0') &&
           text[position] <= QLatin1Char('9'))
        ++position;
    return position;
}

/// "5", "5.", "5.2", "5,2", ".2" or ",2", and perhaps an exponent; without a digit, no part is
/// longer than nothing. A mark or an "e" that no digits follow is not part of the number, except
/// the point of "5.".
NumberParts FindNumber(const QString& text, int position)
{
    NumberParts parts;
    parts.whole = SkipDigits(text, position);
    parts.mark = parts.whole + (IsAt(text, parts.whole, QLatin1String(".,")) ? 1 : 0);
    parts.fraction = SkipDigits(text, parts.mark);
    const bool isWhole = parts.whole > position && IsAt(text, parts.whole, QLatin1String("."));
    if (parts.fraction == parts.mark && !isWhole)
        parts.mark = parts.fraction = parts.whole;
    const bool isNumber = parts.fraction > position;
    const int mark =
        parts.fraction + (isNumber && IsAt(text, parts.fraction, QLatin1String("eE")) ? 1 : 0);
    const int sign = mark + (IsAt(text, mark, QLatin1String("+-")) ? 1 : 0);
    parts.exponent = SkipDigits(text, sign);
    const bool hasExponent = mark > parts.fraction && parts.exponent > sign;
    parts.exponentMark = hasExponent ? mark : parts.fraction;
    if (!hasExponent)
        parts.exponent = parts.fraction;
    return parts;
}

bool IsAsciiLetter(QChar character)
{
    return (character >= QLatin1Char('a') && character <= QLatin1Char('z')) ||
           (character >= QLatin1Char('A') && character <= QLatin1Char('Z'));
}

bool IsUnitMark(QChar character)
{
    return character == QLatin1Char('\'') || character == QLatin1Char('"') ||
           character == QChar(0xb0);
}

/// One to three digits, a comma and three digits may also be thousands.
bool CanBeThousands(const QString& whole, const QString& fraction)
{
    return !whole.isEmpty() && whole.size() <= 3 && !whole.startsWith(QLatin1Char('0')) &&
           fraction.size() == 3;
}

/// These digits times a power of ten; nothing if that is out of the range of doubles.
std::optional<DecimalNumber> MakeNumber(QString text, const QString& digits, int exponent)
{
    const std::string plain =
        text.replace(QLatin1Char(','), QLatin1Char('.')).remove(QLatin1Char('+')).toStdString();
    double value = 0.0;
    if (std::from_chars(plain.data(), plain.data() + plain.size(), value).ec != std::errc())
        return std::nullopt;
    DecimalNumber number;
    number.digits = digits.toStdString();
    number.exponent = exponent;
    return number;
}

/// The number at a position of a text.
std::optional<FormulaToken> TakeNumber(const QString& text, int position, TypedTextFault& fault)
{
    const NumberParts parts = FindNumber(text, position);
    fault = TypedTextFault::NotANumber;
    if (parts.exponent == position)
        return std::nullopt;
    const auto between = [&text](int begin, int end) { return text.mid(begin, end - begin); };
    const QString whole = between(position, parts.whole);
    const QString fraction = between(parts.mark, parts.fraction);
    const int exponent = between(parts.exponentMark, parts.exponent).toInt();
    FormulaToken token{FormulaToken::Kind::Number, between(position, parts.exponent), {}};
    const bool hasComma = token.text.contains(QLatin1Char(','));
    if (hasComma && CanBeThousands(whole, fraction))
    {
        fault = TypedTextFault::AmbiguousComma;
        return std::nullopt;
    }
    const std::optional<DecimalNumber> number =
        MakeNumber(token.text, whole + fraction, exponent - fraction.size());
    fault = TypedTextFault::NoValue;
    if (!number.has_value())
        return std::nullopt;
    token.number = *number;
    token.number.isInteger = token.text == whole;
    token.number.hasComma = hasComma;
    return token;
}

/// The token at a position that is not a blank.
std::optional<FormulaToken> TakeToken(const QString& text, int position, TypedTextFault& fault)
{
    const QChar first = text[position];
    if (QStringLiteral("+-*/^()").contains(first))
        return FormulaToken{FormulaToken::Kind::Symbol, first, {}};
    if (IsUnitMark(first))
        return FormulaToken{FormulaToken::Kind::Name, first, {}};
    if (!IsAsciiLetter(first))
        return TakeNumber(text, position, fault);
    int end = position;
    while (end < text.size() && IsAsciiLetter(text[end]))
        ++end;
    return FormulaToken{FormulaToken::Kind::Name, text.mid(position, end - position), {}};
}

}

std::optional<std::vector<FormulaToken>> SplitFormula(const QString& text, TypedTextFault& fault)
{
    std::vector<FormulaToken> tokens;
    fault = TypedTextFault::AmbiguousComma;
    if (text.contains(QLatin1Char(',')) && text.contains(QLatin1Char('.')))
        return std::nullopt;
    fault = TypedTextFault::NotANumber;
    if (text.size() > LongestText)
        return std::nullopt;
    int position = 0;
    while (position < text.size())
    {
        if (text[position] == QLatin1Char(' '))
        {
            ++position;
            continue;
        }
        std::optional<FormulaToken> token = TakeToken(text, position, fault);
        if (!token.has_value())
            return std::nullopt;
        position += token->text.size();
        tokens.push_back(*std::move(token));
    }
    tokens.emplace_back();
    fault = TypedTextFault::None;
    return tokens;
}

}
