#pragma once

#include "Foundation/HostExport.h"
#include "Geometry/Intervald.h"

#include <string>

namespace vesk
{

/// A unit in which lengths are shown and typed. The model is always in millimetres.
class VESK_HOST_API LengthUnit
{
public:
    /// `millimetres` is the length of one unit; `symbol` follows a number.
    LengthUnit(std::wstring symbol, double millimetres);

    /// "mm", "cm", "m" or "in".
    const std::wstring& GetSymbol() const { return m_symbol; }

    /// From millimetres to the unit and back.
    double ToShown(double modelLength) const { return modelLength / m_millimetres; }

    /// From the unit to millimetres.
    double ToModel(double shownLength) const { return shownLength * m_millimetres; }

    /// The bounds, converted one by one.
    Intervald ToShown(const Intervald& modelRange) const;

    /// 1 mm.
    static const LengthUnit& Millimetre();

    /// 10 mm.
    static const LengthUnit& Centimetre();

    /// 1000 mm.
    static const LengthUnit& Metre();

    /// 25.4 mm.
    static const LengthUnit& Inch();

    /// The current display unit; initially millimetres. Whoever changes it must first end an open
    /// dimension input.
    static const LengthUnit& GetCurrent();

    /// `unit` must live as long as it is the current one.
    static void SetCurrent(const LengthUnit& unit);

private:
    std::wstring m_symbol;
    double m_millimetres;
};

}
