#include "HostUi/TypedText.h"

#include "Formulas/FormulaEvaluation.h"
#include "Formulas/FormulaReader.h"
#include "Texts/HostUiText.h"

#include <array>
#include <charconv>
#include <cmath>
#include <system_error>

namespace vesk
{
namespace
{

/// The numbers that the handlers read themselves: with a sign directly before them at most, and
/// without a comma.
bool IsPlain(const QString& text, const std::vector<FormulaToken>& tokens)
{
    const int signs = tokens.front().Is('+') || tokens.front().Is('-') ? 1 : 0;
    const FormulaToken& number = tokens[static_cast<std::size_t>(signs)];
    const bool isLast = static_cast<int>(tokens.size()) == signs + 2;
    return isLast && number.kind == FormulaToken::Kind::Number && !number.number.hasComma &&
           text.trimmed().size() == signs + number.text.size();
}

}

TypedReading ReadTypedText(const QString& text, Quantity quantity, const LengthUnit& unit)
{
    TypedTextFault fault = TypedTextFault::None;
    std::optional<std::vector<FormulaToken>> tokens = SplitFormula(text, fault);
    if (!tokens.has_value())
        return {fault};
    const bool isPlain = IsPlain(text, *tokens);
    FormulaReader reader(*std::move(tokens), quantity);
    const std::optional<CheckedFormula> formula = reader.Read();
    if (!formula.has_value())
        return {reader.GetFault()};
    const std::optional<FormulaValue> value = Evaluate(*formula, quantity, unit);
    if (!value.has_value())
        return {TypedTextFault::NoValue};
    return {TypedTextFault::None, value->shown, isPlain, value->model};
}

QString ShortestNumber(double value)
{
    constexpr double LeastFixed = 1e-7;
    constexpr double GreatestFixed = 1e15;
    const double size = std::abs(value);
    const bool isFixed = size == 0.0 || (size >= LeastFixed && size < GreatestFixed);
    std::array<char, 32> digits;
    const auto format = isFixed ? std::chars_format::fixed : std::chars_format::scientific;
    const std::to_chars_result result = std::to_chars(digits.begin(), digits.end(), value, format);
    return QString::fromLatin1(digits.data(), static_cast<int>(result.ptr - digits.data()));
}

QString DescribeFault(TypedTextFault fault)
{
    switch (fault)
    {
    case TypedTextFault::None:
        return {};
    case TypedTextFault::NotANumber:
        return "这不是一个数，也不是算式"_tr;
    case TypedTextFault::UnknownName:
        return "含有不认识的名称或单位"_tr;
    case TypedTextFault::AmbiguousComma:
        return "逗号有歧义，小数点请用“.”"_tr;
    case TypedTextFault::Ambiguous:
        return "有歧义，请加括号"_tr;
    case TypedTextFault::MixedUnits:
        return "单位不一致，请给每一项写上单位"_tr;
    case TypedTextFault::WrongQuantity:
        return "单位与此处的量不符"_tr;
    case TypedTextFault::AngleUnit:
        return "角度请以度为单位，如 30d 或 sin(30d)"_tr;
    case TypedTextFault::NoValue:
        return "算不出确定的值"_tr;
    }
    return {};
}

}
