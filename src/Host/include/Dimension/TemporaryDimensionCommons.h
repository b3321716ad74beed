#pragma once

#include "Dimension/InputState.h"
#include "Foundation/HostExport.h"
#include "Foundation/OwnerPtr.h"
#include "Geometry/Coordinate3d.h"
#include "Geometry/Vector3d.h"

namespace vesk
{

class IGraphicsNodeGroup;
class TemporaryDimensionStyle;
struct TemporaryDimensionData;

/// Makes the graphics of provisional dimensions: extension lines, a dimension line or arc with
/// arrows, and the text, in the plane of a coordinate system and of constant size in pixels.
///
/// `pixel` is the world width of one pixel. Each operation fills its entry of `data`. The text is
/// left out while it is being typed (`state`): the editor stands in its place. The text's position
/// is such that the editor lies inside the current view and off the end point, which is the cursor,
/// in views of at least 300 x 200 pixels.
class VESK_HOST_API TemporaryDimensionCommons
{
public:
    /// The distance between two points; the dimension line runs beside the segment.
    static OwnerPtr<IGraphicsNodeGroup>
    GenerateLengthDimension(const Vector3d& start, const Vector3d& end,
                            const Coordinate3d& coordinate, InputState state,
                            const TemporaryDimensionStyle& style, double pixel,
                            TemporaryDimensionData& data);

    /// The angle of the segment to the x axis, counter-clockwise, in degrees above -180 up to 180,
    /// as an arc about the start point.
    static OwnerPtr<IGraphicsNodeGroup>
    GenerateAngleDimension(const Vector3d& start, const Vector3d& end,
                           const Coordinate3d& coordinate, InputState state,
                           const TemporaryDimensionStyle& style, double pixel,
                           TemporaryDimensionData& data);
};

}
