#pragma once

#include "Dimension/LengthUnit.h"
#include "Geometry/Constants.h"
#include "Geometry/Intervald.h"

namespace vesk
{

/// What may be typed where an action does not narrow it: lengths of the model in the unit shown.
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
