#pragma once

#include "Formulas/FormulaUnits.h"

#include <QString>

#include <optional>

namespace vesk
{

/// A function that may be typed.
struct FormulaFunction
{
    /// How its argument and its result hang together.
    enum class Rule
    {
        Keeps,   ///< The result is what the argument is.
        Halves,  ///< The argument is the square of what the result is.
        OfAngle, ///< The argument is an angle, the result a number.
        ToAngle, ///< The other way round.
    };

    const char* name; ///< As typed.

    /// Angles are in degrees; null for the absolute value, which needs no rounding.
    double (*pCompute)(double);
    Rule rule;

    /// What the result is; nothing when it cannot be.
    std::optional<Dimension> ResultOf(const Dimension& argument) const;
};

/// The function of that name, null when there is none.
const FormulaFunction* FindFunction(const QString& name);

}
