#pragma once

#include "Dimension/PlaneVector.h"
#include "Geometry/Vector3d.h"

#include <vector>

namespace vesk
{

class DimensionDrawing;
class EditorPlacement;

/// The radius of a circle at one of its points.
struct RadiusLeader
{
    PlaneVector centre = PlaneVector::Zero();
    PlaneVector tip = PlaneVector::Zero(); ///< The point.
    bool isWhole = true; ///< From the centre; otherwise a short line inside the circle.

    /// 1 when the text would rather stand to the left, seen from the centre; -1 to the right.
    double textSide = 1.0;
};

/// Draws the leader with its arrow; nothing for a circle without a radius.
void DrawRadiusLeader(const RadiusLeader& leader, DimensionDrawing& drawing);

/// Where the text may stand, the best place first. A circle without a radius has places too.
std::vector<Vector3d> GetRadiusPlaces(const RadiusLeader& leader, const EditorPlacement& placement,
                                      const DimensionDrawing& drawing);

}
