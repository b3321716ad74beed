#pragma once

#include "Dimension/InputState.h"
#include "Foundation/HostExport.h"
#include "Geometry/Intervald.h"

namespace vesk
{

/// What an action hands in to have dimensions shown and typed. Points are world points, ranges are
/// in the display unit, those of angles in degrees.
class VESK_HOST_API ITemporaryDimensionContext
{
public:
    virtual ~ITemporaryDimensionContext() = default;

    /// The values that may be typed in the first and the second field.
    virtual Intervald GetFirstValueRange() const = 0;

    /// The same for the second field; unused by kinds with one field.
    virtual Intervald GetSecondValueRange() const = 0;

    /// For a value that this kind of context has: whether it can be typed now.
    virtual bool HasField(InputState /*state*/) const { return true; }
};

}
