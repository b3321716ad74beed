#pragma once

#include "Formulas/FormulaTokens.h"

namespace vesk
{

/// The dimension of a part of a formula: its powers of length and angle, both 0 for a number.
struct Dimension
{
    int length = 0;
    int angle = 0;

    bool IsNumber() const { return length == 0 && angle == 0; }
    bool operator==(const Dimension& other) const
    {
        return length == other.length && angle == other.angle;
    }
    bool operator!=(const Dimension& other) const { return !(*this == other); }
};

/// A unit that may follow a number.
struct FormulaUnit
{
    const char16_t* name;
    Dimension dimension;

    /// Its size in tenths of a millimetre or of a degree, an integer for every unit.
    int tenths;

    bool IsFoot() const;
    bool IsInch() const;
};

/// The unit that the token names; null for any other token.
const FormulaUnit* FindUnit(const FormulaToken& token);

/// Whether a text is the name of a unit, or the beginning of one, ignoring case.
bool IsUnit(const QString& text);
bool BeginsUnit(const QString& text);

}
