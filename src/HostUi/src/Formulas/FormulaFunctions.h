#pragma once

#include "Formulas/FormulaUnits.h"

#include <QString>

#include <optional>

namespace vesk
{

/// A function that can be typed.
struct FormulaFunction
{
    /// How its result relates to its argument.
    enum class Rule
    {
        Keeps,   ///< The result has the argument's dimension.
        Halves,  ///< The result has the square root of the argument's dimension.
        OfAngle, ///< The argument is an angle, the result a number.
        ToAngle, ///< The argument is a number, the result an angle.
    };

    const char* name; ///< As typed.

    /// Angles are in degrees; null for the absolute value, which needs no rounding.
    double (*pCompute)(double);
    Rule rule;

    /// The dimension of the result; nothing if the argument's is invalid.
    std::optional<Dimension> ResultOf(const Dimension& argument) const;
};

/// The function of that name; null if there is none.
const FormulaFunction* FindFunction(const QString& name);

}
