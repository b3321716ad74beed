#include "Formulas/FormulaReader.h"

#include "Formulas/FormulaFunctions.h"

#include <algorithm>
#include <string>
#include <utility>

namespace vesk
{
namespace
{

/// Beyond it a formula of lengths makes no sense, and a power would exceed the range of doubles.
constexpr int GreatestPower = 6;

using Operation = FormulaStep::Kind;

bool IsWholeNumber(const FormulaToken& token)
{
    return token.kind == FormulaToken::Kind::Number && token.number.isInteger;
}

/// The power given by an integer token; nothing for any other token or a greater power.
std::optional<int> FindSmallPower(const FormulaToken& token)
{
    bool isNumber = false;
    const int power = IsWholeNumber(token) ? token.text.toInt(&isNumber) : 0;
    return isNumber && power <= GreatestPower ? std::optional(power) : std::nullopt;
}

Dimension Times(const Dimension& left, const Dimension& right, int sign)
{
    return {left.length + sign * right.length, left.angle + sign * right.angle};
}

}

FormulaReader::FormulaReader(std::vector<FormulaToken> tokens, Quantity quantity)
    : m_tokens(std::move(tokens)), m_quantity(quantity)
{}

std::optional<CheckedFormula> FormulaReader::Read()
{
    Result sum = ReadSum();
    if (sum.has_value() && Peek().kind != FormulaToken::Kind::End)
        sum = FailAtToken();
    if (!sum.has_value() || !IsOfField(*sum))
        return std::nullopt;
    return CheckedFormula{m_steps, sum->dimension == Dimension{1, 0}};
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
        Emit(symbol == '+' ? Operation::Add : Operation::Subtract);
        left = Part{left->dimension, left->namesUnit || right->namesUnit};
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
        Emit(symbol == '*' ? Operation::Multiply : Operation::Divide);
        left = Part{Times(left->dimension, right->dimension, symbol == '*' ? 1 : -1),
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
        // Is -2^2 four or minus four, and 3cm^2 the square of 3 cm? Opinions differ.
        if (isSigned || operand->isQuantity)
            return Fail(TypedTextFault::Ambiguous);
        operand = ReadPower(*operand);
    }
    if (operand.has_value() && isMinus)
        Emit(Operation::Negate);
    return operand;
}

FormulaReader::Result FormulaReader::ReadPower(const Part& base)
{
    Take('^');
    const bool isMinus = Take('-');
    const std::optional<int> power = FindSmallPower(Peek());
    const Result exponent = ReadExponent();
    if (!exponent.has_value())
        return std::nullopt;
    if (Peek().Is('^'))
        return Fail(TypedTextFault::Ambiguous);
    const bool isKnown = base.dimension.IsNumber() || power.has_value();
    if (!exponent->dimension.IsNumber() || exponent->namesUnit || !isKnown)
        return Fail(TypedTextFault::MixedUnits);
    if (isMinus)
        Emit(Operation::Negate);
    Emit(Operation::Power);
    const int times = base.dimension.IsNumber() ? 0 : (isMinus ? -*power : *power);
    return Part{{base.dimension.length * times, base.dimension.angle * times}, base.namesUnit};
}

/// A bare exponent takes no unit: (3cm)^2/4cm is nine quarters of a centimetre.
FormulaReader::Result FormulaReader::ReadExponent()
{
    if (Peek().kind != FormulaToken::Kind::Number || Peek().number.hasComma)
        return ReadOperand();
    Push(Peek().number);
    ++m_position;
    return Part{};
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
    // In a function's parentheses a comma may be meant to separate two arguments.
    if (number.hasComma && m_functionDepth > 0)
        return Fail(TypedTextFault::AmbiguousComma);
    const bool isFraction = IsFraction(0);
    const FormulaUnit* pUnit = FindUnit(Peek(isFraction ? 3 : 1));
    Push(number);
    if (isFraction)
    {
        Push(Peek(2).number);
        Emit(Operation::Divide);
    }
    m_position += isFraction ? 4 : (pUnit != nullptr ? 2 : 1);
    if (pUnit == nullptr)
        return Part{};
    const Part part = Scale(*pUnit);
    return pUnit->IsFoot() ? ReadInches(part) : part;
}

/// Feet and inches are written side by side. With a dash between them they are one length to
/// builders and a difference to everybody else.
FormulaReader::Result FormulaReader::ReadInches(const Part& feet)
{
    if (Peek().Is('-') && IsInches(1))
        return Fail(TypedTextFault::Ambiguous);
    if (!IsInches(0))
        return feet;
    const Result inches = ReadLiteral();
    if (!inches.has_value())
        return std::nullopt;
    Emit(Operation::Add);
    return feet;
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

/// A unit may follow an expression in parentheses.
FormulaReader::Result FormulaReader::ReadUnitAfter(const Part& part)
{
    const FormulaUnit* pUnit = FindUnit(Peek());
    if (pUnit == nullptr)
        return part;
    if (!part.dimension.IsNumber() || part.namesUnit)
        return Fail(TypedTextFault::MixedUnits);
    ++m_position;
    return Scale(*pUnit);
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
    // Pi of what? An angle field is in degrees.
    if (m_quantity == Quantity::Angle)
        return Fail(TypedTextFault::AngleUnit);
    ++m_position;
    Push({"31415926535897932384626433832795028841972", -40});
    return Part{};
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
    m_steps.push_back({Operation::Function, {}, &function});
    return Part{*dimension, argument->namesUnit && !isTrigonometric};
}

/// A formula that names units must have the field's dimension.
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

/// Two integers followed by a unit: 1/2" is half an inch, not 1 divided by 2".
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

/// The current token is out of place.
FormulaReader::Result FormulaReader::FailAtToken()
{
    const FormulaToken& token = Peek();
    if (token.number.hasComma)
        return Fail(TypedTextFault::AmbiguousComma);
    const bool isUnknown = token.kind == FormulaToken::Kind::Name && FindUnit(token) == nullptr &&
                           FindFunction(token.text) == nullptr;
    return Fail(isUnknown ? TypedTextFault::UnknownName : TypedTextFault::NotANumber);
}

void FormulaReader::Push(const DecimalNumber& number)
{
    m_steps.push_back({Operation::Number, number});
}

void FormulaReader::Emit(Operation operation)
{
    m_steps.push_back({operation, {}});
}

/// Converts the value on top of the stack from the unit.
FormulaReader::Part FormulaReader::Scale(const FormulaUnit& unit)
{
    Push({std::to_string(unit.tenths), -1});
    Emit(Operation::Multiply);
    return {unit.dimension, true, true};
}

}
