#pragma once

#include "Foundation/HostExport.h"

#include <string>

namespace vesk
{

/// How provisional dimensions look. It asks for the unit of lengths each time.
class VESK_HOST_API TemporaryDimensionStyle
{
public:
    /// How wide the editor is, in pixels, where its text asks for no more.
    static constexpr int OpeningEditorWidth = 96;

    /// Decimals of the first value (lengths) and of the second (angles).
    int GetFirstValueDecimals() const;
    int GetSecondValueDecimals() const;

    /// Size of the editor in pixels. The width is that of the open editor, which grows with its
    /// text.
    int GetEditorWidth() const;
    int GetEditorHeight() const;

    /// A length of the model in the unit that is shown at this moment.
    double ToShown(double modelLength) const;

    /// The text of a length in the unit shown, and of an angle in degrees.
    std::wstring FormatLength(double value) const;
    std::wstring FormatAngle(double value) const;
};

}
