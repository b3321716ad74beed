#pragma once

#include "Model/Shape.h"

#include <vector>

class Sketch;

/// A rectangle of the drawing plane, with its sides along the axes.
struct Area
{
    vesk::Vector3d low;
    vesk::Vector3d high;

    /// The area between any two opposite corners.
    static Area Between(const vesk::Vector3d& corner, const vesk::Vector3d& opposite);
};

/// What an area has to do with an entity so that it is selected.
enum class AreaRule
{
    Holds,   ///< All of the outline is inside or on the edge.
    Touches, ///< Some of it is.
};

bool Applies(AreaRule rule, const Area& area, const Shape& shape);

/// The entities to which the rule applies, in the order in which they were drawn.
std::vector<int> FindInArea(const Sketch& sketch, const Area& area, AreaRule rule);
