#pragma once

#include "FormulaTokens.h"
#include "FormulaUnits.h"
#include "HostUi/TypedText.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace vesk
{

struct FormulaFunction;

/// Numbers under the names v0, v1, … and a fully parenthesised formula of them.
struct CheckedFormula
{
    std::string expression;
    std::vector<double> operands;
};

/// Reads a formula and finds what it is: a length, an angle or a number.
///
/// It takes only what everybody reads alike. Where programs or trades differ (is -2^2 four, is
/// 10'-6" less than ten feet?) the formula is a fault.
class FormulaReader
{
public:
    FormulaReader(std::vector<FormulaToken> tokens, Quantity quantity, const UnitScale& scale);

    /// The formula of the field's quantity; nothing when there is a fault.
    std::optional<CheckedFormula> Read();
    TypedTextFault GetFault() const { return m_fault; }

private:
    /// A part that was read.
    struct Part
    {
        std::string expression;
        Dimension dimension;

        /// A unit was written in it, and it is no result of an angle's function.
        bool namesUnit = false;

        /// A number that its unit follows.
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
    Part MakeOperand(double value);

    std::vector<FormulaToken> m_tokens;
    Quantity m_quantity;
    UnitScale m_scale;
    std::size_t m_position = 0;
    int m_functionDepth = 0;
    std::vector<double> m_operands;
    TypedTextFault m_fault = TypedTextFault::None;
};

}
