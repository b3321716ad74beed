#include "Formulas/FormulaEvaluation.h"

#include "Dimension/LengthUnit.h"
#include "Formulas/FormulaFunctions.h"
#include "HostUi/TypedText.h"

#include <boost/multiprecision/cpp_int.hpp>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <limits>
#include <string>
#include <system_error>
#include <utility>

namespace vesk
{
namespace
{

using Whole = boost::multiprecision::cpp_int;
using Exact = boost::multiprecision::cpp_rational;
using Result = std::optional<Exact>;

/// The bits that a numerator or denominator may have: a value typed on purpose needs far fewer, and
/// anything else would take long to compute.
constexpr unsigned MostBits = 10000;

unsigned CountBits(const Whole& number)
{
    return number.is_zero() ? 1 : msb(abs(number)) + 1;
}

unsigned CountBits(const Exact& value)
{
    return std::max(CountBits(numerator(value)), CountBits(denominator(value)));
}

/// The value, unless it exceeds the range of doubles or needs too many digits.
Result Checked(const Exact& value)
{
    const auto size = static_cast<int>(CountBits(numerator(value))) -
                      static_cast<int>(CountBits(denominator(value)));
    if (CountBits(value) > MostBits || size > std::numeric_limits<double>::max_exponent)
        return std::nullopt;
    return value;
}

double ToDouble(const Exact& value)
{
    return value.convert_to<double>();
}

/// Every finite double is an exact fraction.
Result FromDouble(double value)
{
    return std::isfinite(value) ? Result(Exact(value)) : std::nullopt;
}

Exact FromDecimal(const DecimalNumber& number)
{
    // A leading zero would make the digits octal.
    const std::size_t first = number.digits.find_first_not_of('0');
    if (first == std::string::npos)
        return 0;
    const Whole digits(number.digits.substr(first));
    const Whole ten = pow(Whole(10), static_cast<unsigned>(std::abs(number.exponent)));
    return number.exponent < 0 ? Exact(digits, ten) : Exact(digits * ten);
}

/// The length of one unit. No double is exactly 25.4: the shortest decimal that rounds to it is
/// meant.
Exact MillimetresOf(const LengthUnit& unit)
{
    TypedTextFault fault = TypedTextFault::None;
    return FromDecimal(
        SplitFormula(ShortestNumber(unit.ToModel(1.0)), fault).value().front().number);
}

Result Divide(const Exact& dividend, const Exact& divisor)
{
    return divisor.is_zero() ? std::nullopt : Result(dividend / divisor);
}

/// Exact for integer exponents, unless the result would have too many digits.
Result Power(const Exact& base, const Exact& exponent)
{
    const double times = ToDouble(exponent);
    const bool isWhole = denominator(exponent) == 1;
    if (!isWhole || std::abs(times) * CountBits(base) > MostBits)
        return FromDouble(std::pow(ToDouble(base), times));
    const auto count = static_cast<unsigned>(std::abs(times));
    const Exact power(pow(numerator(base), count), pow(denominator(base), count));
    return times < 0.0 ? Divide(1, power) : Result(power);
}

Result Apply(const FormulaFunction& function, const Exact& argument)
{
    if (function.pCompute == nullptr)
        return Exact(abs(argument));
    return FromDouble(function.pCompute(ToDouble(argument)));
}

/// The result of a binary step.
Result Combine(FormulaStep::Kind operation, const Exact& left, const Exact& right)
{
    switch (operation)
    {
    case FormulaStep::Kind::Add:
        return Exact(left + right);
    case FormulaStep::Kind::Subtract:
        return Exact(left - right);
    case FormulaStep::Kind::Multiply:
        return Exact(left * right);
    case FormulaStep::Kind::Divide:
        return Divide(left, right);
    default:
        return Power(left, right);
    }
}

/// Executes a step on the stack and returns its result.
Result Take(const FormulaStep& step, std::vector<Exact>& stack)
{
    if (step.kind == FormulaStep::Kind::Number)
        return FromDecimal(step.number);
    const Exact last = std::move(stack.back());
    stack.pop_back();
    if (step.kind == FormulaStep::Kind::Negate)
        return Exact(-last);
    if (step.kind == FormulaStep::Kind::Function)
        return Apply(*step.pFunction, last);
    const Exact first = std::move(stack.back());
    stack.pop_back();
    return Combine(step.kind, first, last);
}

Result Compute(const std::vector<FormulaStep>& steps)
{
    std::vector<Exact> stack;
    for (const FormulaStep& step : steps)
    {
        const Result result = Take(step, stack);
        const Result checked = result.has_value() ? Checked(*result) : std::nullopt;
        if (!checked.has_value())
            return std::nullopt;
        stack.push_back(*checked);
    }
    return stack.back();
}

/// A number that is its own model value. Its digits are rounded once, as a fraction would be.
std::optional<FormulaValue> ReadNumberAlone(const CheckedFormula& formula, Quantity quantity,
                                            const LengthUnit& unit)
{
    const bool isScaled = quantity == Quantity::Length && unit.ToModel(1.0) != 1.0;
    if (formula.steps.size() != 1 || formula.steps[0].kind != FormulaStep::Kind::Number || isScaled)
        return std::nullopt;
    const DecimalNumber& number = formula.steps[0].number;
    const std::string text = number.digits + 'e' + std::to_string(number.exponent);
    double value = 0.0;
    if (std::from_chars(text.data(), text.data() + text.size(), value).ec != std::errc())
        return std::nullopt;
    return FormulaValue{value, value};
}

}

std::optional<FormulaValue> Evaluate(const CheckedFormula& formula, Quantity quantity,
                                     const LengthUnit& unit)
{
    if (const std::optional<FormulaValue> alone = ReadNumberAlone(formula, quantity, unit))
        return alone;
    const Result value = Compute(formula.steps);
    if (!value.has_value())
        return std::nullopt;
    const Exact scale = quantity == Quantity::Length ? MillimetresOf(unit) : Exact(1);
    const Result shown = formula.isInMillimetres ? Divide(*value, scale) : value;
    if (!shown.has_value())
        return std::nullopt;
    const Exact model = formula.isInMillimetres ? *value : Exact(*value * scale);
    const FormulaValue result{ToDouble(*shown), ToDouble(model)};
    const bool isFinite = std::isfinite(result.shown) && std::isfinite(result.model);
    return isFinite ? std::optional(result) : std::nullopt;
}

}
