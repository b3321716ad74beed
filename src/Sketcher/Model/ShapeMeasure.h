#pragma once

#include "Model/Shape.h"

/// An axis-aligned bounding box.
struct ShapeBounds
{
    vesk::Vector3d low;
    vesk::Vector3d high;
};

/// The exact bounds of a shape, round parts included.
ShapeBounds BoundsOf(const Shape& shape);

/// The distance of a point from the nearest point of a shape's outline.
double DistanceTo(const Shape& shape, const vesk::Vector3d& point);
