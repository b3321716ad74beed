#pragma once

#include "Model/Shape.h"

/// A shape moved by a vector; each coordinate is rounded once.
Shape Translated(const Shape& shape, const vesk::Vector3d& way);

/// A shape in the drawing plane, mirrored in the line through a point in a direction of any length
/// but zero. Axes at multiples of 45 degrees are exact except for the rounding of sums. An arc
/// still runs counter-clockwise about its normal.
Shape Mirrored(const Shape& shape, const vesk::Vector3d& onAxis, const vesk::Vector3d& direction);
