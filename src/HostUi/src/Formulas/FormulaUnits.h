#pragma once

#include "Formulas/FormulaTokens.h"

namespace vesk
{

/// What a part of a formula is: a number, an angle, or a length to some power.
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

    /// How long it is, in tenths of a millimetre, or how great, in tenths of a degree: whole for
    /// every one.
    int tenths;

    bool IsFoot() const;
    bool IsInch() const;
};

/// The unit of that name; null for any other token.
const FormulaUnit* FindUnit(const FormulaToken& token);

/// Whether a text is the name of a unit, or its beginning, also where it is written in capitals.
bool IsUnit(const QString& text);
bool BeginsUnit(const QString& text);

}
