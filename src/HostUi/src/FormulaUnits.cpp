#include "FormulaUnits.h"

#include "Dimension/LengthUnit.h"

#include <cmath>

namespace vesk
{
namespace
{

constexpr Dimension Length{1, 0};
constexpr Dimension Angle{0, 1};
constexpr int InchTenths = 254;
constexpr int FootTenths = 12 * InchTenths;

constexpr FormulaUnit Units[] = {
    {u"mm", Length, 10},
    {u"cm", Length, 100},
    {u"dm", Length, 1000},
    {u"m", Length, 10000},
    {u"km", Length, 10000000},
    {u"in", Length, InchTenths},
    {u"inch", Length, InchTenths},
    {u"\"", Length, InchTenths},
    {u"ft", Length, FootTenths},
    {u"'", Length, FootTenths},
    {u"d", Angle, 1},
    {u"deg", Angle, 1},
    {u"\u00b0", Angle, 1},
};

/// Whole numbers up to here are doubles, each of them.
constexpr double GreatestWhole = 9007199254740992.0;

/// Powers of ten up to here are doubles.
constexpr int GreatestTen = 22;

bool IsExact(double whole)
{
    return std::abs(whole) <= GreatestWhole && std::floor(whole) == whole;
}

double Ten(int exponent)
{
    double ten = 1.0;
    for (int i = 0; i < exponent; ++i)
        ten *= 10.0;
    return ten;
}

}

bool FormulaUnit::IsFoot() const
{
    return dimension == Length && tenths == FootTenths;
}

bool FormulaUnit::IsInch() const
{
    return dimension == Length && tenths == InchTenths;
}

const FormulaUnit* FindUnit(const FormulaToken& token)
{
    if (token.kind != FormulaToken::Kind::Name)
        return nullptr;
    for (const FormulaUnit& unit : Units)
    {
        if (token.text == QString::fromUtf16(unit.name))
            return &unit;
    }
    return nullptr;
}

UnitScale::UnitScale(const LengthUnit& shown) : m_shownTenths(shown.ToModel(10.0)) {}

double UnitScale::FactorOf(const FormulaUnit& unit) const
{
    return unit.dimension == Length ? unit.tenths / m_shownTenths : 1.0;
}

double UnitScale::Convert(const DecimalNumber& number, const FormulaUnit& unit) const
{
    if (unit.dimension != Length)
        return number.value;
    const int exponent = number.exponent;
    const double rounded = number.value * unit.tenths / m_shownTenths;
    if (!number.mantissa.has_value() || std::abs(exponent) > GreatestTen)
        return rounded;
    // A quotient of two whole numbers is rounded once, and that is the nearest there is.
    double above = static_cast<double>(*number.mantissa) * unit.tenths;
    double below = m_shownTenths;
    (exponent > 0 ? above : below) *= Ten(std::abs(exponent));
    return IsExact(above) && IsExact(below) ? above / below : rounded;
}

double UnitScale::ConvertFraction(const DecimalNumber& numerator, const DecimalNumber& denominator,
                                  const FormulaUnit& unit) const
{
    if (unit.dimension != Length)
        return numerator.value / denominator.value;
    const double above = numerator.value * unit.tenths;
    const double below = denominator.value * m_shownTenths;
    return above / below;
}

}
