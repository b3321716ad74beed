#pragma once

#include "Dimension/PlaneVector.h"
#include "Geometry/Vector3d.h"

#include <vector>

namespace vesk
{

class DimensionDrawing;
class EditorPlacement;

/// A side of the measured object along which a straight dimension may run.
struct MeasuredSide
{
    PlaneVector start;
    PlaneVector end;
    PlaneVector outwards; ///< Unit vector perpendicular to the side.
};

/// Draws extension lines and a dimension line with arrows beside the first of the sides where the
/// text has room, otherwise beside the first one; nothing beside a side of length zero.
///
/// Returns the possible positions of the text, best first.
std::vector<Vector3d> DrawStraightDimension(const std::vector<MeasuredSide>& sides,
                                            const EditorPlacement& placement,
                                            DimensionDrawing& drawing);

}
