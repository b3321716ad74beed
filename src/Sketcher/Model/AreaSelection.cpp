#include "Model/AreaSelection.h"

#include "Model/Crossings.h"
#include "Model/ShapeMeasure.h"
#include "Model/ShapePieces.h"
#include "Model/Sketch.h"

#include <algorithm>
#include <array>
#include <cstddef>

using vesk::Vector3d;

namespace
{

bool Contains(const Area& area, const Vector3d& point)
{
    return point.x() >= area.low.x() && point.x() <= area.high.x() && point.y() >= area.low.y() &&
           point.y() <= area.high.y();
}

/// The sides; fewer than four if the area is degenerate.
std::vector<LineShape> SidesOf(const Area& area)
{
    const std::array<Vector3d, 4> corners = {area.low, Vector3d(area.high.x(), area.low.y(), 0.0),
                                             area.high, Vector3d(area.low.x(), area.high.y(), 0.0)};
    std::vector<LineShape> sides;
    for (std::size_t i = 0; i < corners.size(); ++i)
    {
        const LineShape side{corners[i], corners[(i + 1) % corners.size()]};
        if (side.start != side.end)
            sides.push_back(side);
    }
    return sides;
}

bool Crosses(const std::vector<LineShape>& sides, const Piece& piece)
{
    return std::any_of(sides.begin(), sides.end(), [&piece](const LineShape& side) {
        const Crossings points = Cross(side, piece);
        return points.begin() != points.end();
    });
}

bool Overlap(const Area& area, const ShapeBounds& bounds)
{
    return bounds.low.x() <= area.high.x() && bounds.high.x() >= area.low.x() &&
           bounds.low.y() <= area.high.y() && bounds.high.y() >= area.low.y();
}

/// A piece that touches an area starts in it or crosses its edge.
bool Touches(const Area& area, const Shape& shape)
{
    if (!Overlap(area, BoundsOf(shape)))
        return false;
    const std::vector<LineShape> sides = SidesOf(area);
    bool isTouching = false;
    VisitPieces(shape, [&](const auto& piece) {
        isTouching = isTouching || Contains(area, piece.start) || Crosses(sides, piece);
    });
    return isTouching;
}

}

bool Applies(AreaRule rule, const Area& area, const Shape& shape)
{
    if (rule == AreaRule::Touches)
        return Touches(area, shape);
    const ShapeBounds bounds = BoundsOf(shape);
    return Contains(area, bounds.low) && Contains(area, bounds.high);
}

std::vector<int> FindInArea(const Sketch& sketch, const Area& area, AreaRule rule)
{
    std::vector<int> ids;
    for (const Entity* pEntity : sketch.FindIn(area))
    {
        if (sketch.CanPick(*pEntity) && Applies(rule, area, pEntity->shape))
            ids.push_back(pEntity->id);
    }
    return ids;
}
