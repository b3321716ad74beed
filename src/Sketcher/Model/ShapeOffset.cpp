#include "Model/ShapeOffset.h"

#include "Model/Overloaded.h"
#include "Model/Polar.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

using vesk::Vector3d;

namespace
{

/// The outward unit normals of the sides, the first of which goes from corner 0 to corner 1.
std::array<Vector3d, 4> NormalsOf(const RectangleShape& rectangle)
{
    const auto& corners = rectangle.corners;
    const Vector3d first = (corners[1] - corners[2]).normalized();
    const Vector3d second = (corners[1] - corners[0]).normalized();
    return {first, second, -first, -second};
}

/// The side of a point at a distance along a normal; behind it, which is inside of what is closed,
/// if that is negative.
OffsetSide SideAlong(const Vector3d& normal, const Vector3d& point, double distance, bool isClosed)
{
    const bool isBehind = distance < 0.0;
    const Vector3d away = isBehind ? Vector3d(-normal) : normal;
    return {point - distance * normal, away, std::abs(distance), isClosed && isBehind};
}

OffsetSide SideOfLine(const LineShape& line, const Vector3d& point)
{
    const Vector3d left = QuarterTurned(line.end - line.start).normalized();
    return SideAlong(left, point, left.dot(point - line.start), false);
}

OffsetSide SideOfCircle(const Vector3d& centre, double radius, const Vector3d& point)
{
    const Vector3d spoke = point - centre;
    const double length = spoke.norm();
    const Vector3d outward = length > 0.0 ? Vector3d(spoke / length) : Vector3d(Vector3d::UnitX());
    const bool isInside = length < radius;
    return {centre + radius * outward, isInside ? Vector3d(-outward) : outward,
            std::abs(length - radius), isInside};
}

/// The side of a rectangle that is nearest to a point, seen along the normals.
struct NearSide
{
    Vector3d normal;
    double distance; ///< Negative inside.
};

NearSide NearSideOf(const RectangleShape& rectangle, const Vector3d& point)
{
    const std::array<Vector3d, 4> normals = NormalsOf(rectangle);
    std::array<double, 4> distances{};
    for (std::size_t i = 0; i < normals.size(); ++i)
        distances[i] = normals[i].dot(point - rectangle.corners[i]);
    const auto* pFarthest = std::max_element(distances.begin(), distances.end());
    return {normals[static_cast<std::size_t>(pFarthest - distances.data())], *pFarthest};
}

/// The radius beside a circle, on the side of a point.
double OffsetRadius(const Vector3d& centre, double radius, const Vector3d& point, double distance)
{
    return (point - centre).norm() < radius ? radius - distance : radius + distance;
}

Shape OffsetLine(const LineShape& line, const Vector3d& point, double distance)
{
    const Vector3d way = distance * SideOfLine(line, point).away;
    return LineShape{line.start + way, line.end + way};
}

Shape OffsetCircle(const CircleShape& circle, const Vector3d& point, double distance)
{
    return CircleShape{circle.centre, OffsetRadius(circle.centre, circle.radius, point, distance),
                       circle.normal};
}

Shape OffsetArc(const ArcShape& arc, const Vector3d& point, double distance)
{
    const double radius = OffsetRadius(arc.centre, arc.radius, point, distance);
    const double ratio = radius / arc.radius;
    return ArcShape{arc.centre, radius, arc.centre + ratio * (arc.start - arc.centre),
                    arc.centre + ratio * (arc.end - arc.centre), arc.normal};
}

/// Without any size if it would turn inside out.
Shape OffsetRectangle(const RectangleShape& rectangle, const Vector3d& point, double distance)
{
    const auto& corners = rectangle.corners;
    const bool isInside = NearSideOf(rectangle, point).distance < 0.0;
    const double smaller =
        std::min((corners[1] - corners[0]).norm(), (corners[2] - corners[1]).norm());
    if (isInside && 2.0 * distance >= smaller)
        return RectangleShape();
    const std::array<Vector3d, 4> normals = NormalsOf(rectangle);
    RectangleShape beside = rectangle;
    for (std::size_t i = 0; i < normals.size(); ++i)
        beside.corners[i] +=
            (isInside ? -distance : distance) * (normals[i] + normals[(i + 3) % 4]);
    return beside;
}

}

OffsetSide SideOf(const Shape& shape, const Vector3d& point)
{
    return std::visit(
        Overloaded{
            [&point](const LineShape& line) { return SideOfLine(line, point); },
            [&point](const CircleShape& circle) {
                return SideOfCircle(circle.centre, circle.radius, point);
            },
            [&point](const ArcShape& arc) { return SideOfCircle(arc.centre, arc.radius, point); },
            [&point](const RectangleShape& rectangle) {
                const NearSide side = NearSideOf(rectangle, point);
                return SideAlong(side.normal, point, side.distance, true);
            },
        },
        shape);
}

std::optional<Shape> Offset(const Shape& shape, const Vector3d& point, double distance)
{
    const Shape beside = std::visit(
        Overloaded{
            [&](const LineShape& line) { return OffsetLine(line, point, distance); },
            [&](const CircleShape& circle) { return OffsetCircle(circle, point, distance); },
            [&](const ArcShape& arc) { return OffsetArc(arc, point, distance); },
            [&](const RectangleShape& rectangle) {
                return OffsetRectangle(rectangle, point, distance);
            },
        },
        shape);
    return IsDrawable(beside) ? std::make_optional(beside) : std::nullopt;
}
