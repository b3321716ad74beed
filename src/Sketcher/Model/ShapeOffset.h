#pragma once

#include "Model/Shape.h"

#include <optional>

/// Where a point in the drawing plane lies beside a shape.
///
/// Sides are prolonged: a line is infinite, an arc a whole circle, and beyond the corner of a
/// rectangle the side counts from which the point is farther away.
struct OffsetSide
{
    vesk::Vector3d foot; ///< The point of the outline that faces it.
    vesk::Vector3d away; ///< The unit vector from the outline towards it; some side if it is on it.
    double distance;     ///< Its distance from the foot.
    bool isInside;       ///< It is within a circle, an arc's circle or a rectangle.
};

OffsetSide SideOf(const Shape& shape, const vesk::Vector3d& point);

/// The shape at a distance from another, on the side of a point. Nothing if it cannot be drawn, as
/// within a circle that is too small.
std::optional<Shape> Offset(const Shape& shape, const vesk::Vector3d& point, double distance);
