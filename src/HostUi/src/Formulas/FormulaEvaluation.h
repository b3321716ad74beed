#pragma once

#include "Formulas/FormulaReader.h"

#include <optional>

namespace vesk
{

class LengthUnit;

/// A formula's value, each member the nearest double to it; for angles both are the same.
struct FormulaValue
{
    double shown; ///< In the display unit, or in degrees.
    double model; ///< In millimetres, or in degrees.
};

/// Evaluates a formula for a field whose lengths are in `unit`. Sums, differences, products,
/// quotients and integer powers are exact; a function's result is a double. Nothing if there is no
/// finite value.
std::optional<FormulaValue> Evaluate(const CheckedFormula& formula, Quantity quantity,
                                     const LengthUnit& unit);

}
