#pragma once

#include "Foundation/HostExport.h"

#include <string>

namespace vesk
{

/// The appearance of provisional dimensions. The display unit is queried on each call.
class VESK_HOST_API TemporaryDimensionStyle
{
public:
    /// The width of the editor in pixels, unless its text needs more.
    static constexpr int OpeningEditorWidth = 96;

    /// Decimals of the first value (lengths) and of the second (angles).
    int GetFirstValueDecimals() const;

    /// Decimals of the second value (angles).
    int GetSecondValueDecimals() const;

    /// Size of the editor in pixels. The width is that of the open editor, which grows with its
    /// text.
    int GetEditorWidth() const;

    /// The height of the editor in pixels.
    int GetEditorHeight() const;

    /// A model length in the current display unit.
    double ToShown(double modelLength) const;

    /// The text of a length in the display unit, and of an angle in degrees.
    std::wstring FormatLength(double value) const;

    /// The text of an angle in degrees, with that many decimals.
    std::wstring FormatAngle(double value) const;
};

}
