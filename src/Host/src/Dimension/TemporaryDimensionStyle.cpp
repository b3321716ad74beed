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

/// Whether a number lies exactly halfway between two numbers with `decimals` decimals and rounding
/// to even moves it towards zero; the last digit is then even.
bool LosesHalf(double value, int decimals)
{
    const double halves = 2.0 * std::pow(10.0, decimals);
    // The integer part does not matter.
    const double fraction = value - std::trunc(value);
    const double count = fraction * halves;
    return std::fma(fraction, halves, -count) == 0.0 && std::abs(std::fmod(count, 4.0)) == 1.0;
}

/// The number with fixed decimals and a decimal point, whatever the locale; zero has no sign.
/// Halfway cases are rounded away from zero, as Qt does in the editor.
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
