#pragma once

#include "Foundation/HostExport.h"

#include <string>

namespace vesk
{

/// How provisional dimensions look.
class VESK_HOST_API TemporaryDimensionStyle
{
public:
    /// Decimals of the first value (lengths) and of the second (angles).
    int GetFirstValueDecimals() const;
    int GetSecondValueDecimals() const;

    /// Size of the editor in pixels.
    int GetEditorWidth() const;
    int GetEditorHeight() const;

    /// The text of a length and of an angle in degrees, as the dimension shows it.
    std::wstring FormatLength(double value) const;
    std::wstring FormatAngle(double value) const;
};

}
