#pragma once

#include "Model/Shape.h"

/// The least box along the axes that holds shapes.
struct ShapeBounds
{
    vesk::Vector3d low;
    vesk::Vector3d high;
};

/// The bounds of a shape, round parts as they are.
ShapeBounds BoundsOf(const Shape& shape);

/// The distance of a point from the nearest point of a shape's outline.
double DistanceTo(const Shape& shape, const vesk::Vector3d& point);
