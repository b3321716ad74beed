#pragma once

#include "Geometry/Vector3d.h"

#include <array>
#include <variant>

struct LineShape
{
    vesk::Vector3d start = vesk::Vector3d::Zero();
    vesk::Vector3d end = vesk::Vector3d::Zero();
};

/// The normal is the unit normal of the circle's plane.
struct CircleShape
{
    vesk::Vector3d centre = vesk::Vector3d::Zero();
    double radius = 0.0;
    vesk::Vector3d normal = vesk::Vector3d::UnitZ();
};

/// From the start counter-clockwise about the normal to the end; a full circle if both are the same
/// point.
struct ArcShape
{
    vesk::Vector3d centre = vesk::Vector3d::Zero();
    double radius = 0.0;
    vesk::Vector3d start = vesk::Vector3d::Zero();
    vesk::Vector3d end = vesk::Vector3d::Zero();
    vesk::Vector3d normal = vesk::Vector3d::UnitZ();
};

/// The corners are in order around the rectangle.
struct RectangleShape
{
    std::array<vesk::Vector3d, 4> corners = {vesk::Vector3d::Zero(), vesk::Vector3d::Zero(),
                                             vesk::Vector3d::Zero(), vesk::Vector3d::Zero()};
};

/// The geometry of an entity, in millimetres.
using Shape = std::variant<LineShape, CircleShape, ArcShape, RectangleShape>;

/// True if all numbers of two shapes are equal.
bool operator==(const LineShape& a, const LineShape& b);
bool operator==(const CircleShape& a, const CircleShape& b);
bool operator==(const ArcShape& a, const ArcShape& b);
bool operator==(const RectangleShape& a, const RectangleShape& b);

/// True if a shape can be part of a drawing: all numbers are finite; length, radius, width and
/// height are between the model's minimum and maximum size; an arc has at least the minimum length
/// and its ends lie on its circle; a rectangle has right angles. Rounding errors are tolerated.
bool IsDrawable(const Shape& shape);
