#include "Formulas/FormulaUnits.h"

#include <algorithm>
#include <iterator>

namespace vesk
{
namespace
{

constexpr Dimension Length{1, 0};
constexpr Dimension Angle{0, 1};
constexpr int InchTenths = 254;
constexpr int FootTenths = 12 * InchTenths;

constexpr FormulaUnit Units[] = {
    {u"mm", Length, 10},           {u"cm", Length, 100},        {u"dm", Length, 1000},
    {u"m", Length, 10000},         {u"km", Length, 10000000},   {u"in", Length, InchTenths},
    {u"inch", Length, InchTenths}, {u"\"", Length, InchTenths}, {u"ft", Length, FootTenths},
    {u"'", Length, FootTenths},    {u"d", Angle, 10},           {u"deg", Angle, 10},
    {u"\u00b0", Angle, 10},
};

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

bool IsUnit(const QString& text)
{
    return std::any_of(std::begin(Units), std::end(Units), [&text](const FormulaUnit& unit) {
        return QString::fromUtf16(unit.name).compare(text, Qt::CaseInsensitive) == 0;
    });
}

bool BeginsUnit(const QString& text)
{
    return std::any_of(std::begin(Units), std::end(Units), [&text](const FormulaUnit& unit) {
        return QString::fromUtf16(unit.name).startsWith(text, Qt::CaseInsensitive);
    });
}

}
