#pragma once

#include "Model/Shape.h"

/// A point turned in the drawing plane about a centre, in degrees, counter-clockwise when positive.
/// Exact at every quarter turn, but for the rounding of the sums; a whole turn changes nothing.
vesk::Vector3d Rotated(const vesk::Vector3d& point, const vesk::Vector3d& centre, double degrees);

/// A shape that stands in the drawing plane, turned in the same way; its radius stays as it is.
Shape Rotated(const Shape& shape, const vesk::Vector3d& centre, double degrees);
