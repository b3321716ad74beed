#pragma once

#include "Foundation/HostExport.h"

#include <string>

namespace vesk
{

/// How provisional dimensions look. It asks for the unit of lengths each time.
class VESK_HOST_API TemporaryDimensionStyle
{
public:
    /// Decimals of the first value (lengths) and of the second (angles).
    int GetFirstValueDecimals() const;
    int GetSecondValueDecimals() const;

    /// Size of the editor in pixels.
    int GetEditorWidth() const;
    int GetEditorHeight() const;

    /// A length of the model in the unit that is shown at this moment.
    double ToShown(double modelLength) const;

    /// The text of a length in the unit shown, and of an angle in degrees.
    std::wstring FormatLength(double value) const;
    std::wstring FormatAngle(double value) const;
};

}
