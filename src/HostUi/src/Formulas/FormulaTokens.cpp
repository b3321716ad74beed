#include "Formulas/FormulaTokens.h"

#include <QRegularExpression>

#include <charconv>
#include <string>
#include <system_error>

namespace vesk
{
namespace
{

/// Nobody types a text of several screens.
constexpr int LongestText = 300;

const QRegularExpression& NumberPattern()
{
    static const QRegularExpression s_pattern(
        QStringLiteral(R"((?:([0-9]+)(?:\.([0-9]*)|,([0-9]+))?|\.([0-9]+)|,([0-9]+)))"
                       R"((?:[eE]([+-]?[0-9]+))?)"));
    return s_pattern;
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
    const QRegularExpressionMatch match = NumberPattern().match(
        text, position, QRegularExpression::NormalMatch, QRegularExpression::AnchoredMatchOption);
    fault = TypedTextFault::NotANumber;
    if (!match.hasMatch())
        return std::nullopt;
    const QString whole = match.captured(1);
    const QString fraction =
        match.captured(2) + match.captured(3) + match.captured(4) + match.captured(5);
    FormulaToken token{FormulaToken::Kind::Number, match.captured(), {}};
    const bool hasComma = token.text.contains(QLatin1Char(','));
    if (hasComma && CanBeThousands(whole, fraction))
    {
        fault = TypedTextFault::AmbiguousComma;
        return std::nullopt;
    }
    const std::optional<DecimalNumber> number =
        MakeNumber(token.text, whole + fraction, match.captured(6).toInt() - fraction.size());
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
