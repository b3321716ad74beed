#pragma once

#include "Dimension/PlaneVector.h"
#include "Geometry/Vector3d.h"

#include <vector>

namespace vesk
{

class DimensionDrawing;
class EditorPlacement;

/// A side of what is measured, beside which a straight dimension may run.
struct MeasuredSide
{
    PlaneVector start;
    PlaneVector end;
    PlaneVector outwards; ///< Unit vector at right angles to the side.
};

/// Draws extension lines and a dimension line with arrows beside the first of the sides where the
/// text has room, else beside the first of all; nothing beside a side without length.
///
/// Gives the places of the text, the best first.
std::vector<Vector3d> DrawStraightDimension(const std::vector<MeasuredSide>& sides,
                                            const EditorPlacement& placement,
                                            DimensionDrawing& drawing);

}
