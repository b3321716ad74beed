// SPDX-License-Identifier: GPL-3.0-or-later

#include "PolylineShapes.h"

#include "Geometry/Constants.h"
#include "Model/Polar.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>

using vesk::Constants;
using vesk::Vector3d;

namespace
{

bool IsSamePlace(const Vector3d& a, const Vector3d& b)
{
    return (a - b).norm() < Constants::MIN_MODEL_SIZE;
}

std::optional<RectangleShape> ToRectangle(const std::vector<PolylineVertex>& vertices)
{
    constexpr std::size_t CornerCount = 4;
    const bool isStraight =
        std::all_of(vertices.begin(), vertices.end(),
                    [](const PolylineVertex& vertex) { return vertex.bulge == 0.0; });
    if (vertices.size() != CornerCount || !isStraight)
        return std::nullopt;
    RectangleShape rectangle;
    for (std::size_t i = 0; i < CornerCount; ++i)
        rectangle.corners[i] = vertices[i].point;
    return IsDrawable(rectangle) ? std::make_optional(rectangle) : std::nullopt;
}

Shape ToPiece(const PolylineVertex& from, const Vector3d& to)
{
    const Vector3d way = to - from.point;
    const double bulge = from.bulge;
    const double radius = way.norm() * (1.0 + bulge * bulge) / (4.0 * std::abs(bulge));
    // A curve whose height is less than what two points may differ is straight.
    if (!(radius <= Constants::MAX_MODEL_SIZE) ||
        std::abs(bulge) * way.norm() / 2.0 < Constants::DOUBLE_EPS)
        return LineShape{from.point, to};
    const Vector3d centre =
        from.point + way / 2.0 + QuarterTurned(way) * ((1.0 - bulge * bulge) / (4.0 * bulge));
    return bulge > 0.0 ? ArcShape{centre, radius, from.point, to}
                       : ArcShape{centre, radius, to, from.point};
}

}

std::vector<Shape> ShapesOfPolyline(std::vector<PolylineVertex> vertices, bool isClosed)
{
    const auto isRepeated = [](const PolylineVertex& a, const PolylineVertex& b) {
        return IsSamePlace(a.point, b.point);
    };
    vertices.erase(std::unique(vertices.begin(), vertices.end(), isRepeated), vertices.end());
    if (vertices.size() > 2 && IsSamePlace(vertices.front().point, vertices.back().point))
    {
        vertices.pop_back();
        isClosed = true;
    }
    if (isClosed)
    {
        if (const std::optional<RectangleShape> rectangle = ToRectangle(vertices))
            return {*rectangle};
    }
    std::vector<Shape> shapes;
    const std::size_t count = vertices.size();
    for (std::size_t i = 0; i + 1 < count || (isClosed && count > 1 && i < count); ++i)
        shapes.push_back(ToPiece(vertices[i], vertices[(i + 1) % count].point));
    return shapes;
}
