#pragma once

#include "Dimension/LengthUnit.h"
#include "Geometry/Constants.h"
#include "Geometry/Intervald.h"

namespace vesk
{

/// The range of lengths that may be typed unless an action narrows it, in the display unit.
inline Intervald DefaultLengthRange()
{
    return LengthUnit::GetCurrent().ToShown(
        Intervald(Constants::MIN_MODEL_SIZE, Constants::MAX_MODEL_SIZE));
}

/// The same for angles, in degrees.
inline Intervald DefaultAngleRange()
{
    return {-360.0, 360.0};
}

}
