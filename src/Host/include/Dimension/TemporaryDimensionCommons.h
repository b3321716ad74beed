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

    /// The radius of the circle through three points: a leader from the arc at `third`, the
    /// cursor. Where the points lie on one line nothing is drawn and the value is 0.
    static OwnerPtr<IGraphicsNodeGroup>
    GenerateRadiusDimensionFor3PtArc(const Vector3d& first, const Vector3d& second,
                                     const Vector3d& third, const Coordinate3d& coordinate,
                                     InputState state, const TemporaryDimensionStyle& style,
                                     double pixel, TemporaryDimensionData& data);

    /// The central angle of the arc from `first` to `second` through `third`, in degrees above
    /// -360 and below 360, counter-clockwise when positive.
    static OwnerPtr<IGraphicsNodeGroup>
    GenerateCentralAngleDimensionFor3PtArc(const Vector3d& first, const Vector3d& second,
                                           const Vector3d& third, const Coordinate3d& coordinate,
                                           InputState state, const TemporaryDimensionStyle& style,
                                           double pixel, TemporaryDimensionData& data);

    /// The central angle from `start` to `end` about `centre`, in degrees above -180 up to 180,
    /// counter-clockwise when positive. `cursor` is kept free of the text. With `hasRadiusLines`
    /// the lines from the centre to both ends are drawn too.
    static OwnerPtr<IGraphicsNodeGroup> GenerateCentralAngleDimensionForCenterEndArc(
        const Vector3d& centre, const Vector3d& start, const Vector3d& end, const Vector3d& cursor,
        bool hasRadiusLines, const Coordinate3d& coordinate, InputState state,
        const TemporaryDimensionStyle& style, double pixel, TemporaryDimensionData& data);

    /// The radius of the circle about `centre` through `start`. `end` is where the arc ends, on
    /// the side of which the text does not stand. With `hasRadiusLine` the line from the centre to
    /// `start` is drawn too.
    static OwnerPtr<IGraphicsNodeGroup> GenerateRadiusDimensionForCenterEndArc(
        const Vector3d& centre, const Vector3d& start, const Vector3d& end, bool hasRadiusLine,
        const Coordinate3d& coordinate, InputState state, const TemporaryDimensionStyle& style,
        double pixel, TemporaryDimensionData& data);

    /// The extent of a rectangle with sides along the plane's axes, along x; never negative. The
    /// dimension line runs outside the rectangle, beside its side through `corner`.
    static OwnerPtr<IGraphicsNodeGroup>
    GenerateWidthDimension(const Vector3d& corner, const Vector3d& opposite,
                           const Coordinate3d& coordinate, InputState state,
                           const TemporaryDimensionStyle& style, double pixel,
                           TemporaryDimensionData& data);

    /// The same along y.
    static OwnerPtr<IGraphicsNodeGroup>
    GenerateHeightDimension(const Vector3d& corner, const Vector3d& opposite,
                            const Coordinate3d& coordinate, InputState state,
                            const TemporaryDimensionStyle& style, double pixel,
                            TemporaryDimensionData& data);
};

/// Makes the graphics of the dimensions of changes, in the same way.
class VESK_HOST_API TemporaryDimensionCommonsUtils
{
public:
    /// The angle by which the direction of `from` turns to that of `to`, about `centre`, in degrees
    /// above -180 up to 180, counter-clockwise when positive, as an arc with a line to either
    /// point.
    static OwnerPtr<IGraphicsNodeGroup>
    GenerateRotationDimension(const Vector3d& centre, const Vector3d& from, const Vector3d& to,
                              const Coordinate3d& coordinate, InputState state,
                              const TemporaryDimensionStyle& style, double pixel,
                              TemporaryDimensionData& data);
};

}
