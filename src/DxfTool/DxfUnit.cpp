// SPDX-License-Identifier: GPL-3.0-or-later

#include "DxfUnit.h"

#include <algorithm>
#include <iterator>

namespace
{

constexpr DxfUnit DxfUnits[] = {
    {1, "in", 25.4},    {2, "ft", 304.8},  {3, "mi", 1609344.0}, {4, "mm", 1.0},
    {5, "cm", 10.0},    {6, "m", 1000.0},  {7, "km", 1e6},       {8, "uin", 25.4e-6},
    {9, "mil", 0.0254}, {10, "yd", 914.4}, {11, "A", 1e-7},      {12, "nm", 1e-6},
    {13, "um", 1e-3},   {14, "dm", 100.0}, {15, "dam", 1e4},     {16, "hm", 1e5},
};

template <class Predicate>
const DxfUnit* FindUnitIf(const Predicate& predicate)
{
    const auto* pFound = std::find_if(std::begin(DxfUnits), std::end(DxfUnits), predicate);
    return pFound != std::end(DxfUnits) ? pFound : nullptr;
}

}

const DxfUnit* FindDxfUnit(int code)
{
    return FindUnitIf([code](const DxfUnit& unit) { return unit.code == code; });
}

const DxfUnit* FindDxfUnit(const std::string& name)
{
    return FindUnitIf([&name](const DxfUnit& unit) { return unit.name == name; });
}
