#include "Dimension/TemporaryDimensionStyle.h"

#include "Dimension/LengthUnit.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace vesk
{

namespace
{

/// Room for the greatest double with its decimals.
using Digits = std::array<char, 400>;

/// The number with fixed decimals and a point, whatever the locale; zero has no sign.
std::wstring Format(double value, int decimals)
{
    Digits digits;
    char* const pBegin = digits.data();
    const char* const pEnd =
        std::to_chars(pBegin, pBegin + digits.size(), value, std::chars_format::fixed, decimals)
            .ptr;
    const bool isZero = std::all_of(static_cast<const char*>(pBegin), pEnd,
                                    [](char c) { return c == '-' || c == '0' || c == '.'; });
    const bool isMinusZero = isZero && *pBegin == '-';
    return {static_cast<const char*>(pBegin) + (isMinusZero ? 1 : 0), pEnd};
}

}

int TemporaryDimensionStyle::GetFirstValueDecimals() const
{
    return 3;
}

int TemporaryDimensionStyle::GetSecondValueDecimals() const
{
    return 2;
}

int TemporaryDimensionStyle::GetEditorWidth() const
{
    return 96;
}

int TemporaryDimensionStyle::GetEditorHeight() const
{
    return 26;
}

double TemporaryDimensionStyle::ToShown(double modelLength) const
{
    return LengthUnit::GetCurrent().ToShown(modelLength);
}

std::wstring TemporaryDimensionStyle::FormatLength(double value) const
{
    return Format(value, GetFirstValueDecimals());
}

std::wstring TemporaryDimensionStyle::FormatAngle(double value) const
{
    return Format(value, GetSecondValueDecimals());
}

}
