#pragma once

#include "Formulas/FormulaReader.h"

#include <optional>

namespace vesk
{

class LengthUnit;

/// A formula's value, each the double nearest to it; for angles they are the same.
struct FormulaValue
{
    double shown; ///< In the unit shown, or in degrees.
    double model; ///< In millimetres, or in degrees.
};

/// Computes a formula for a field whose lengths are in `unit`. Sums, differences, products,
/// quotients and whole powers are exact; what a function gives is a double. Nothing where there is
/// no finite value.
///
/// Where the program was built without exact arithmetic only a number has a value, and its model
/// value is rounded twice.
std::optional<FormulaValue> Evaluate(const CheckedFormula& formula, Quantity quantity,
                                     const LengthUnit& unit);

}
