#include "Dimension/TemporaryDimensionStyle.h"

#include "Dimension/LengthUnit.h"
#include "Dimension/TemporaryDimensionMgr.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace vesk
{

namespace
{

/// Room for the greatest double with its decimals.
using Digits = std::array<char, 400>;

/// Whether rounding to even takes a number towards zero that lies in the very middle between two of
/// so many decimals. Its last digit is even then.
bool LosesHalf(double value, int decimals)
{
    const double halves = 2.0 * std::pow(10.0, decimals);
    // What is before the point plays no part.
    const double fraction = value - std::trunc(value);
    const double count = fraction * halves;
    return std::fma(fraction, halves, -count) == 0.0 && std::abs(std::fmod(count, 4.0)) == 1.0;
}

/// The number with fixed decimals and a point, whatever the locale; zero has no sign. What lies
/// halfway is rounded away from zero, as Qt does it in the editor.
std::wstring Format(double value, int decimals)
{
    Digits digits;
    char* const pBegin = digits.data();
    char* const pEnd =
        std::to_chars(pBegin, pBegin + digits.size(), value, std::chars_format::fixed, decimals)
            .ptr;
    if (LosesHalf(value, decimals))
        ++pEnd[-1];
    const bool isZero =
        std::all_of(pBegin, pEnd, [](char c) { return c == '-' || c == '0' || c == '.'; });
    const bool isMinusZero = isZero && *pBegin == '-';
    return {pBegin + (isMinusZero ? 1 : 0), pEnd};
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
    return std::max(OpeningEditorWidth, TemporaryDimensionMgr::GetInstance()->GetEditorWidth());
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
