#pragma once

#include "Geometry/Vector3d.h"

#include <array>
#include <variant>

struct LineShape
{
    vesk::Vector3d start = vesk::Vector3d::Zero();
    vesk::Vector3d end = vesk::Vector3d::Zero();
};

/// The normal, of length one, stands on the plane of the circle.
struct CircleShape
{
    vesk::Vector3d centre = vesk::Vector3d::Zero();
    double radius = 0.0;
    vesk::Vector3d normal = vesk::Vector3d::UnitZ();
};

/// From the start counter-clockwise about the normal to the end; the whole turn where both are the
/// same point.
struct ArcShape
{
    vesk::Vector3d centre = vesk::Vector3d::Zero();
    double radius = 0.0;
    vesk::Vector3d start = vesk::Vector3d::Zero();
    vesk::Vector3d end = vesk::Vector3d::Zero();
    vesk::Vector3d normal = vesk::Vector3d::UnitZ();
};

/// The corners stand in the order in which one walks around.
struct RectangleShape
{
    std::array<vesk::Vector3d, 4> corners = {vesk::Vector3d::Zero(), vesk::Vector3d::Zero(),
                                             vesk::Vector3d::Zero(), vesk::Vector3d::Zero()};
};

/// What an entity looks like, in millimetres.
using Shape = std::variant<LineShape, CircleShape, ArcShape, RectangleShape>;

/// True when every number of two shapes is the same.
bool operator==(const LineShape& a, const LineShape& b);
bool operator==(const CircleShape& a, const CircleShape& b);
bool operator==(const ArcShape& a, const ArcShape& b);
bool operator==(const RectangleShape& a, const RectangleShape& b);

/// True when a shape can stand in a drawing: all numbers are finite; length, radius, width and
/// height lie between the least and the greatest size of the model; an arc is as long as the least
/// and its ends lie on its circle; a rectangle has right angles. Rounding does not matter.
bool IsDrawable(const Shape& shape);
