#pragma once

#include "Foundation/Any.h"

#include <cstdint>
#include <string>

namespace vesk
{

/// A value typed in the view.
struct ActionViewInput
{
    /// Which value it is, and how it was committed.
    enum Kind : std::int32_t
    {
        LengthEntered = 1, ///< With Tab: the value is committed, the input goes on.
        AngleEntered = 2,
        WidthEntered = 6,
        HeightEntered = 7,
        LengthCommitted = 8, ///< With Return: the input has ended.
        AngleCommitted = 9,
        RadiusCommitted = 10,
        RadiusWithAngleCommitted = 11, ///< A radius shown together with its central angle.
        CentralAngleCommitted = 12,    ///< A central angle or a rotation.
        WidthCommitted = 13,
        HeightCommitted = 14,
    };

    std::int32_t kind = 0; ///< One of Kind.
    double value = 0.0;    ///< In the display unit or in degrees; 0 if the text is not a number.
    std::wstring text;     ///< The text itself, in raw-text mode only.
    Any extra;             ///< Not used; for values that are no numbers.
};

}
