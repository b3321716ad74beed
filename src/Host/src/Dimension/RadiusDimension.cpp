#include "Dimension/RadiusDimension.h"

#include "Dimension/DimensionDrawing.h"
#include "Dimension/EditorPlacement.h"

#include <algorithm>

namespace vesk
{

namespace
{

// In pixels.
constexpr double ShortLength = 24.0;

/// The direction from the centre; the x axis for a radius of zero.
PlaneVector DirectionOf(const RadiusLeader& leader)
{
    const PlaneVector along = leader.tip - leader.centre;
    const double length = along.norm();
    return length > 0.0 ? PlaneVector(along / length) : PlaneVector::UnitX();
}

}

void DrawRadiusLeader(const RadiusLeader& leader, DimensionDrawing& drawing)
{
    const double radius = (leader.tip - leader.centre).norm();
    if (!(radius > 0.0))
        return;
    const PlaneVector direction = DirectionOf(leader);
    const double length = std::min(ShortLength, radius);
    const PlaneVector start =
        leader.isWhole ? leader.centre : PlaneVector(leader.tip - length * direction);
    drawing.AddLine(start, leader.tip);
    drawing.AddArrow(leader.tip, direction, radius);
}

std::vector<Vector3d> GetRadiusPlaces(const RadiusLeader& leader, const EditorPlacement& placement,
                                      const DimensionDrawing& drawing)
{
    const PlaneVector direction = DirectionOf(leader);
    const PlaneVector normal = leader.textSide * TurnLeft(direction);
    const PlaneVector offset = placement.GetClearance(normal) * normal;
    const PlaneVector middle = (leader.centre + leader.tip) / 2;
    const PlaneVector visibleMiddle = drawing.ToPlane(
        placement.GetVisibleMiddle(drawing.ToWorld(leader.centre), drawing.ToWorld(leader.tip)));
    const PlaneVector behind = leader.centre - placement.GetClearance(direction) * direction;
    return {drawing.ToWorld(middle + offset), drawing.ToWorld(visibleMiddle + offset),
            drawing.ToWorld(middle - offset), drawing.ToWorld(visibleMiddle - offset),
            drawing.ToWorld(behind)};
}

}
