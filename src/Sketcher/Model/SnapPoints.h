#pragma once

#include "Model/Shape.h"

#include <optional>
#include <vector>

/// The ends of lines and arcs and the corners of rectangles. A full-circle arc has one end, a
/// circle none.
std::vector<vesk::Vector3d> EndsOf(const Shape& shape);

/// The midpoints of lines, of arcs and of the sides of rectangles.
std::vector<vesk::Vector3d> MiddlesOf(const Shape& shape);

/// The centre of a circle, an arc or a rectangle.
std::optional<vesk::Vector3d> CentreOf(const Shape& shape);
