#pragma once

#include "Model/Shape.h"

#include <vector>

class Sketch;

/// An axis-aligned rectangle in the drawing plane.
struct Area
{
    vesk::Vector3d low;
    vesk::Vector3d high;

    /// The area between any two opposite corners.
    static Area Between(const vesk::Vector3d& corner, const vesk::Vector3d& opposite);
};

/// How an area selects an entity.
enum class AreaRule
{
    Holds,   ///< The whole outline is inside or on the edge.
    Touches, ///< Part of it is.
};

bool Applies(AreaRule rule, const Area& area, const Shape& shape);

/// The entities to which the rule applies and that can be picked, in the order in which they were
/// drawn.
std::vector<int> FindInArea(const Sketch& sketch, const Area& area, AreaRule rule);
