#pragma once

#include "Formulas/FormulaTokens.h"
#include "Formulas/FormulaUnits.h"
#include "HostUi/TypedText.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace vesk
{

struct FormulaFunction;

/// A step of a computation on a stack of values.
struct FormulaStep
{
    enum class Kind
    {
        Number, ///< Pushes a number.

        // The others pop one or two values and push their result.
        Negate,
        Add,
        Subtract,
        Multiply,
        Divide,
        Power,
        Function,
    };

    Kind kind;
    DecimalNumber number;
    const FormulaFunction* pFunction = nullptr;
};

/// How to compute a formula; one value remains at the end.
struct CheckedFormula
{
    std::vector<FormulaStep> steps;

    /// Whether that value is in millimetres because the formula names units. Otherwise it is an
    /// angle in degrees, or a bare number in the unit of the field.
    bool isInMillimetres = false;
};

/// Parses a formula and determines its dimension: a length, an angle or a number.
///
/// It accepts only what everybody reads alike. Where programs or trades differ (is -2^2 four, is
/// 10'-6" less than ten feet?) the formula is a fault.
class FormulaReader
{
public:
    FormulaReader(std::vector<FormulaToken> tokens, Quantity quantity);

    /// The formula, checked against the field's quantity; nothing if there is a fault.
    std::optional<CheckedFormula> Read();
    TypedTextFault GetFault() const { return m_fault; }

private:
    /// A part of the formula.
    struct Part
    {
        Dimension dimension;

        /// It names a unit outside the argument of a trigonometric function.
        bool namesUnit = false;

        /// A number followed by its unit.
        bool isQuantity = false;
    };

    using Result = std::optional<Part>;

    Result ReadSum();
    Result ReadProduct(bool maySign);
    Result ReadFactor(bool maySign);
    Result ReadPower(const Part& base);
    Result ReadExponent();
    Result ReadOperand();
    Result ReadLiteral();
    Result ReadInches(const Part& feet);
    Result ReadParentheses();
    Result ReadUnitAfter(const Part& part);
    Result ReadName();
    Result ReadFunction(const FormulaFunction& function);
    bool IsOfField(const Part& part);

    bool IsFraction(std::size_t ahead) const;
    bool IsInches(std::size_t ahead) const;
    const FormulaToken& Peek(std::size_t ahead = 0) const;
    bool Take(char symbol);
    Result Fail(TypedTextFault fault);
    Result FailAtToken();
    void Push(const DecimalNumber& number);
    void Emit(FormulaStep::Kind operation);
    Part Scale(const FormulaUnit& unit);

    std::vector<FormulaToken> m_tokens;
    Quantity m_quantity;
    std::size_t m_position = 0;
    int m_functionDepth = 0;
    std::vector<FormulaStep> m_steps;
    TypedTextFault m_fault = TypedTextFault::None;
};

}
