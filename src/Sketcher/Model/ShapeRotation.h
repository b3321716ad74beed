#pragma once

#include "Model/Shape.h"

/// A point rotated in the drawing plane about a centre, in degrees, positive counter-clockwise.
/// Multiples of 90 degrees are exact except for the rounding of sums; multiples of 360 degrees
/// change nothing.
vesk::Vector3d Rotated(const vesk::Vector3d& point, const vesk::Vector3d& centre, double degrees);

/// A shape in the drawing plane, rotated in the same way; its radius stays unchanged.
Shape Rotated(const Shape& shape, const vesk::Vector3d& centre, double degrees);
