#include "FormulaReader.h"

#include "FormulaFunctions.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vesk
{
namespace
{

/// Beyond it a formula of lengths makes no sense, and a power would leave the doubles.
constexpr double GreatestPower = 6.0;

bool IsWholeNumber(const FormulaToken& token)
{
    return token.kind == FormulaToken::Kind::Number && token.number.isInteger;
}

std::string Parenthesise(const std::string& left, char symbol, const std::string& right)
{
    return '(' + left + symbol + right + ')';
}

Dimension Times(const Dimension& left, const Dimension& right, int sign)
{
    return {left.length + sign * right.length, left.angle + sign * right.angle};
}

}

FormulaReader::FormulaReader(std::vector<FormulaToken> tokens, Quantity quantity,
                             const UnitScale& scale)
    : m_tokens(std::move(tokens)), m_quantity(quantity), m_scale(scale)
{}

std::optional<CheckedFormula> FormulaReader::Read()
{
    Result sum = ReadSum();
    if (sum.has_value() && Peek().kind != FormulaToken::Kind::End)
        sum = FailAtToken();
    if (!sum.has_value() || !IsOfField(*sum))
        return std::nullopt;
    return CheckedFormula{sum->expression, m_operands};
}

FormulaReader::Result FormulaReader::ReadSum()
{
    Result left = ReadProduct(true);
    while (left.has_value() && (Peek().Is('+') || Peek().Is('-')))
    {
        const char symbol = Take('+') ? '+' : '-';
        if (symbol == '-')
            Take('-');
        const Result right = ReadProduct(false);
        if (!right.has_value())
            return std::nullopt;
        if (left->dimension != right->dimension)
            return Fail(TypedTextFault::MixedUnits);
        left = Part{Parenthesise(left->expression, symbol, right->expression), left->dimension,
                    left->namesUnit || right->namesUnit};
    }
    return left;
}

FormulaReader::Result FormulaReader::ReadProduct(bool maySign)
{
    Result left = ReadFactor(maySign);
    while (left.has_value() && (Peek().Is('*') || Peek().Is('/')))
    {
        const char symbol = Take('*') ? '*' : '/';
        if (symbol == '/')
            Take('/');
        const Result right = ReadFactor(true);
        if (!right.has_value())
            return std::nullopt;
        left = Part{Parenthesise(left->expression, symbol, right->expression),
                    Times(left->dimension, right->dimension, symbol == '*' ? 1 : -1),
                    left->namesUnit || right->namesUnit};
    }
    return left;
}

FormulaReader::Result FormulaReader::ReadFactor(bool maySign)
{
    const bool isMinus = maySign && Take('-');
    const bool isSigned = isMinus || (maySign && Take('+'));
    Result operand = ReadOperand();
    if (operand.has_value() && Peek().Is('^'))
    {
        // Is -2^2 four or minus four, and 3cm^2 the square of 3 cm? It depends on whom you ask.
        if (isSigned || operand->isQuantity)
            return Fail(TypedTextFault::Ambiguous);
        operand = ReadPower(*operand);
    }
    if (operand.has_value() && isMinus)
        operand->expression = "(-" + operand->expression + ')';
    return operand;
}

FormulaReader::Result FormulaReader::ReadPower(const Part& base)
{
    Take('^');
    const bool isMinus = Take('-');
    const bool isLiteral = IsWholeNumber(Peek());
    const double power = (isMinus ? -1.0 : 1.0) * Peek().number.value;
    const Result exponent = ReadExponent();
    if (!exponent.has_value())
        return std::nullopt;
    if (Peek().Is('^'))
        return Fail(TypedTextFault::Ambiguous);
    const bool isKnown =
        base.dimension.IsNumber() || (isLiteral && std::abs(power) <= GreatestPower);
    if (!exponent->dimension.IsNumber() || exponent->namesUnit || !isKnown)
        return Fail(TypedTextFault::MixedUnits);
    const int times = base.dimension.IsNumber() ? 0 : static_cast<int>(power);
    const std::string sign = isMinus ? "(-" : "(";
    return Part{Parenthesise(base.expression, '^', sign + exponent->expression + ')'),
                {base.dimension.length * times, base.dimension.angle * times},
                base.namesUnit};
}

/// No unit belongs to a bare exponent: (3cm)^2/4cm is nine quarters of a centimetre.
FormulaReader::Result FormulaReader::ReadExponent()
{
    if (Peek().kind != FormulaToken::Kind::Number || Peek().number.hasComma)
        return ReadOperand();
    const double value = Peek().number.value;
    ++m_position;
    return MakeOperand(value);
}

FormulaReader::Result FormulaReader::ReadOperand()
{
    if (Peek().kind == FormulaToken::Kind::Number)
        return ReadLiteral();
    if (Peek().Is('('))
    {
        const Result inner = ReadParentheses();
        return inner.has_value() ? ReadUnitAfter(*inner) : std::nullopt;
    }
    if (Peek().kind == FormulaToken::Kind::Name)
    {
        const Result named = ReadName();
        return named.has_value() ? ReadUnitAfter(*named) : std::nullopt;
    }
    return Fail(TypedTextFault::NotANumber);
}

FormulaReader::Result FormulaReader::ReadLiteral()
{
    const DecimalNumber& number = Peek().number;
    // In a function's parentheses a comma may be meant to part two arguments.
    if (number.hasComma && m_functionDepth > 0)
        return Fail(TypedTextFault::AmbiguousComma);
    const bool isFraction = IsFraction(0);
    const FormulaUnit* pUnit = FindUnit(Peek(isFraction ? 3 : 1));
    double value = number.value;
    if (isFraction)
        value = m_scale.ConvertFraction(number, Peek(2).number, *pUnit);
    else if (pUnit != nullptr)
        value = m_scale.Convert(number, *pUnit);
    m_position += isFraction ? 4 : (pUnit != nullptr ? 2 : 1);

    Part part = MakeOperand(value);
    if (pUnit == nullptr)
        return part;
    part.dimension = pUnit->dimension;
    part.namesUnit = true;
    part.isQuantity = true;
    return pUnit->IsFoot() ? ReadInches(part) : part;
}

/// Feet and inches stand side by side. With a dash between them they are one length for builders
/// and a difference for everybody else.
FormulaReader::Result FormulaReader::ReadInches(const Part& feet)
{
    if (Peek().Is('-') && IsInches(1))
        return Fail(TypedTextFault::Ambiguous);
    if (!IsInches(0))
        return feet;
    const Result inches = ReadLiteral();
    if (!inches.has_value())
        return std::nullopt;
    Part both = feet;
    both.expression = Parenthesise(feet.expression, '+', inches->expression);
    return both;
}

FormulaReader::Result FormulaReader::ReadParentheses()
{
    Take('(');
    Result sum = ReadSum();
    if (!sum.has_value())
        return std::nullopt;
    if (!Take(')'))
        return FailAtToken();
    sum->isQuantity = false;
    return sum;
}

/// A unit may follow what stands in parentheses.
FormulaReader::Result FormulaReader::ReadUnitAfter(const Part& part)
{
    const FormulaUnit* pUnit = FindUnit(Peek());
    if (pUnit == nullptr)
        return part;
    if (!part.dimension.IsNumber() || part.namesUnit)
        return Fail(TypedTextFault::MixedUnits);
    ++m_position;
    const Part factor = MakeOperand(m_scale.FactorOf(*pUnit));
    return Part{Parenthesise(part.expression, '*', factor.expression), pUnit->dimension, true,
                true};
}

FormulaReader::Result FormulaReader::ReadName()
{
    const QString name = Peek().text;
    const FormulaFunction* pFunction = FindFunction(name);
    if (pFunction != nullptr)
        return ReadFunction(*pFunction);
    if (name != QLatin1String("pi"))
        return Fail(FindUnit(Peek()) != nullptr ? TypedTextFault::NotANumber
                                                : TypedTextFault::UnknownName);
    // Half a pi of what? An angle's field is in degrees.
    if (m_quantity == Quantity::Angle)
        return Fail(TypedTextFault::AngleUnit);
    ++m_position;
    return MakeOperand(std::acos(-1.0));
}

FormulaReader::Result FormulaReader::ReadFunction(const FormulaFunction& function)
{
    ++m_position;
    if (!Peek().Is('('))
        return Fail(TypedTextFault::NotANumber);
    ++m_functionDepth;
    const Result argument = ReadParentheses();
    --m_functionDepth;
    if (!argument.has_value())
        return std::nullopt;
    const bool isOfAngle = function.rule == FormulaFunction::Rule::OfAngle;
    const std::optional<Dimension> dimension = function.ResultOf(argument->dimension);
    if (!dimension.has_value())
        return Fail(isOfAngle && argument->dimension.IsNumber() ? TypedTextFault::AngleUnit
                                                                : TypedTextFault::MixedUnits);
    const bool isTrigonometric = isOfAngle || function.rule == FormulaFunction::Rule::ToAngle;
    return Part{function.evaluator + ('(' + argument->expression + ')'), *dimension,
                argument->namesUnit && !isTrigonometric};
}

/// A formula that names units has to come to the field's.
bool FormulaReader::IsOfField(const Part& part)
{
    constexpr Dimension Length{1, 0};
    constexpr Dimension Angle{0, 1};
    const bool isLength = m_quantity == Quantity::Length;
    if (part.dimension == (isLength ? Length : Angle))
        return true;
    if (part.dimension.IsNumber() && !part.namesUnit)
        return true;
    Fail(part.dimension == (isLength ? Angle : Length) ? TypedTextFault::WrongQuantity
                                                       : TypedTextFault::MixedUnits);
    return false;
}

/// Two whole numbers with a unit behind them: half an inch, not one by two inches.
bool FormulaReader::IsFraction(std::size_t ahead) const
{
    return IsWholeNumber(Peek(ahead)) && Peek(ahead + 1).Is('/') &&
           IsWholeNumber(Peek(ahead + 2)) && FindUnit(Peek(ahead + 3)) != nullptr;
}

bool FormulaReader::IsInches(std::size_t ahead) const
{
    if (Peek(ahead).kind != FormulaToken::Kind::Number)
        return false;
    const FormulaUnit* pUnit = FindUnit(Peek(ahead + (IsFraction(ahead) ? 3 : 1)));
    return pUnit != nullptr && pUnit->IsInch();
}

const FormulaToken& FormulaReader::Peek(std::size_t ahead) const
{
    return m_tokens[std::min(m_position + ahead, m_tokens.size() - 1)];
}

bool FormulaReader::Take(char symbol)
{
    const bool isThere = Peek().Is(symbol);
    m_position += isThere ? 1 : 0;
    return isThere;
}

FormulaReader::Result FormulaReader::Fail(TypedTextFault fault)
{
    m_fault = fault;
    return std::nullopt;
}

/// The token does not belong where it stands.
FormulaReader::Result FormulaReader::FailAtToken()
{
    const FormulaToken& token = Peek();
    if (token.number.hasComma)
        return Fail(TypedTextFault::AmbiguousComma);
    const bool isUnknown = token.kind == FormulaToken::Kind::Name && FindUnit(token) == nullptr &&
                           FindFunction(token.text) == nullptr;
    return Fail(isUnknown ? TypedTextFault::UnknownName : TypedTextFault::NotANumber);
}

FormulaReader::Part FormulaReader::MakeOperand(double value)
{
    m_operands.push_back(value);
    return {'v' + std::to_string(m_operands.size() - 1), {}};
}

}
