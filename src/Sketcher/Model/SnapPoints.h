#pragma once

#include "Model/Shape.h"

#include <optional>
#include <vector>

/// The ends of lines and arcs and the corners of rectangles. An arc of the whole turn has one end,
/// a circle none.
std::vector<vesk::Vector3d> EndsOf(const Shape& shape);

/// The middles of lines, of arcs and of the sides of rectangles.
std::vector<vesk::Vector3d> MiddlesOf(const Shape& shape);

/// The centre of a circle, an arc or a rectangle.
std::optional<vesk::Vector3d> CentreOf(const Shape& shape);
