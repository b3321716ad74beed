#pragma once

#include "Model/Area.h"
#include "Model/Shape.h"

#include <vector>

class Sketch;

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
