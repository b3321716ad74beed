#include "Formulas/FormulaEvaluation.h"

#include "Dimension/LengthUnit.h"

#include <QString>

namespace vesk
{

std::optional<FormulaValue> Evaluate(const CheckedFormula& formula, Quantity quantity,
                                     const LengthUnit& unit)
{
    using Kind = FormulaStep::Kind;
    const std::vector<FormulaStep>& steps = formula.steps;
    const bool isNegative = steps.size() == 2 && steps.back().kind == Kind::Negate;
    if (steps.size() != 1 && !isNegative)
        return std::nullopt;
    const DecimalNumber& number = steps.front().number;
    const QString digits = QString::fromStdString(number.digits);
    const double size = QString(digits + 'e' + QString::number(number.exponent)).toDouble();
    const double value = isNegative && size != 0.0 ? -size : size;
    return FormulaValue{value, quantity == Quantity::Length ? unit.ToModel(value) : value};
}

}
