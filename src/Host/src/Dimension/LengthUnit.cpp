#include "Dimension/LengthUnit.h"

#include <utility>

namespace vesk
{

namespace
{

const LengthUnit* s_pCurrent = nullptr;

}

LengthUnit::LengthUnit(std::wstring symbol, double millimetres)
    : m_symbol(std::move(symbol)), m_millimetres(millimetres)
{}

Intervald LengthUnit::ToShown(const Intervald& modelRange) const
{
    return {ToShown(modelRange.GetMin()), ToShown(modelRange.GetMax())};
}

const LengthUnit& LengthUnit::Millimetre()
{
    static const LengthUnit s_unit(L"mm", 1.0);
    return s_unit;
}

const LengthUnit& LengthUnit::Centimetre()
{
    static const LengthUnit s_unit(L"cm", 10.0);
    return s_unit;
}

const LengthUnit& LengthUnit::Metre()
{
    static const LengthUnit s_unit(L"m", 1000.0);
    return s_unit;
}

const LengthUnit& LengthUnit::Inch()
{
    static const LengthUnit s_unit(L"in", 25.4);
    return s_unit;
}

const LengthUnit& LengthUnit::GetCurrent()
{
    return s_pCurrent != nullptr ? *s_pCurrent : Millimetre();
}

void LengthUnit::SetCurrent(const LengthUnit& unit)
{
    s_pCurrent = &unit;
}

}
