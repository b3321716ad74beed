#pragma once

#include "FormulaTokens.h"

#include <optional>

namespace vesk
{

class LengthUnit;

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

    /// How long it is, in tenths of a millimetre: whole for every one. One for angles.
    int tenths;

    bool IsFoot() const;
    bool IsInch() const;
};

/// The unit of that name; null for any other token.
const FormulaUnit* FindUnit(const FormulaToken& token);

/// Values with a unit, in the unit shown.
class UnitScale
{
public:
    explicit UnitScale(const LengthUnit& shown);

    /// One of the unit.
    double FactorOf(const FormulaUnit& unit) const;

    /// The double nearest to so many of the unit, wherever few enough digits make that certain.
    double Convert(const DecimalNumber& number, const FormulaUnit& unit) const;

    /// The same for a fraction of two whole numbers.
    double ConvertFraction(const DecimalNumber& numerator, const DecimalNumber& denominator,
                           const FormulaUnit& unit) const;

private:
    double m_shownTenths;
};

}
