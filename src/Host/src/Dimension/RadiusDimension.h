#pragma once

#include "Dimension/PlaneVector.h"
#include "Geometry/Vector3d.h"

#include <vector>

namespace vesk
{

class DimensionDrawing;
class EditorPlacement;

/// The leader that shows a circle's radius at one of its points.
struct RadiusLeader
{
    PlaneVector centre = PlaneVector::Zero();
    PlaneVector tip = PlaneVector::Zero(); ///< The point on the circle.
    bool isWhole = true; ///< From the centre; otherwise a short line inside the circle.

    /// 1 if the text is preferably on the left, seen from the centre; -1 on the right.
    double textSide = 1.0;
};

/// Draws the leader with its arrow; nothing for a radius of zero.
void DrawRadiusLeader(const RadiusLeader& leader, DimensionDrawing& drawing);

/// The possible positions of the text, best first; there are some even for a radius of zero.
std::vector<Vector3d> GetRadiusPlaces(const RadiusLeader& leader, const EditorPlacement& placement,
                                      const DimensionDrawing& drawing);

}
