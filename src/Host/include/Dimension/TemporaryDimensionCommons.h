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

/// Generates the graphics of provisional dimensions: extension lines, a dimension line or arc with
/// arrows, and the text, in the plane of a coordinate system and at a constant size in pixels.
///
/// `pixel` is the world width of one pixel. `state` is the value being typed; its graphics are
/// highlighted and its text is omitted, since the editor is shown instead. A locked value is shown
/// as locked.
///
/// Each operation fills its entry of `data`: the value, in the display unit or in degrees, as exact
/// as the points are, and the text position. Lengths are distances in space; everything else is
/// measured in the plane, however far the points are from it. The position is chosen so that, in
/// views of at least 300 x 200 pixels, the editor lies inside the current view and covers neither
/// the cursor nor the text of the dimension generated before it: angle after length, height after
/// width, radius after central angle for an arc about a centre, central angle after radius for
/// other arcs.
///
/// Even if there is nothing to measure, a position for the editor is found, unless an operation
/// says otherwise. A point with a coordinate that is not finite, or beyond 1e30 in magnitude, gives
/// an empty group and leaves `data` unchanged.
class VESK_HOST_API TemporaryDimensionCommons
{
public:
    /// The distance between two points; the dimension line runs beside the segment, or along x if
    /// the segment is perpendicular to the plane. Equal points give an empty group and leave `data`
    /// unchanged. `end` is the cursor.
    static OwnerPtr<IGraphicsNodeGroup>
    GenerateLengthDimension(const Vector3d& start, const Vector3d& end,
                            const Coordinate3d& coordinate, InputState state,
                            const TemporaryDimensionStyle& style, double pixel,
                            TemporaryDimensionData& data);

    /// The angle from the x axis to the segment, counter-clockwise, in degrees above -180 up to
    /// 180, as an arc about the start point. Equal points give an empty group and leave `data`
    /// unchanged. `end` is the cursor.
    static OwnerPtr<IGraphicsNodeGroup>
    GenerateAngleDimension(const Vector3d& start, const Vector3d& end,
                           const Coordinate3d& coordinate, InputState state,
                           const TemporaryDimensionStyle& style, double pixel,
                           TemporaryDimensionData& data);

    /// The radius of the circle through three points, as an arrow from the centre to `third`, the
    /// cursor. If the points are collinear, or the radius is greater than MAX_MODEL_SIZE, nothing
    /// is drawn and the value is 0.
    static OwnerPtr<IGraphicsNodeGroup>
    GenerateRadiusDimensionFor3PtArc(const Vector3d& first, const Vector3d& second,
                                     const Vector3d& third, const Coordinate3d& coordinate,
                                     InputState state, const TemporaryDimensionStyle& style,
                                     double pixel, TemporaryDimensionData& data);

    /// The central angle of the arc from `first` to `second` through `third`, the cursor, in
    /// degrees above -360 and below 360, counter-clockwise when positive; an arc about the centre,
    /// with lines to `first` and `second`. Without a circle (as above) nothing is drawn and the
    /// value is 0.
    static OwnerPtr<IGraphicsNodeGroup>
    GenerateCentralAngleDimensionFor3PtArc(const Vector3d& first, const Vector3d& second,
                                           const Vector3d& third, const Coordinate3d& coordinate,
                                           InputState state, const TemporaryDimensionStyle& style,
                                           double pixel, TemporaryDimensionData& data);

    /// The central angle from `start` to `end` about `centre`, in degrees above -180 up to 180,
    /// counter-clockwise when positive; 0 if `start` or `end` is the centre. `end` lies in the
    /// direction of `cursor`, which the text avoids. With `hasRadiusLines` the lines from the
    /// centre to both ends are drawn too.
    static OwnerPtr<IGraphicsNodeGroup> GenerateCentralAngleDimensionForCenterEndArc(
        const Vector3d& centre, const Vector3d& start, const Vector3d& end, const Vector3d& cursor,
        bool hasRadiusLines, const Coordinate3d& coordinate, InputState state,
        const TemporaryDimensionStyle& style, double pixel, TemporaryDimensionData& data);

    /// The radius of the circle about `centre` through `start`, as an arrow to `start`: from the
    /// centre with `hasRadiusLine`, otherwise a short one. The text avoids `end`, where the arc
    /// ends, and is on the other side of the radius if there is room. The value is not meant to be
    /// typed: the text may cover a cursor that is not at `end`.
    static OwnerPtr<IGraphicsNodeGroup> GenerateRadiusDimensionForCenterEndArc(
        const Vector3d& centre, const Vector3d& start, const Vector3d& end, bool hasRadiusLine,
        const Coordinate3d& coordinate, InputState state, const TemporaryDimensionStyle& style,
        double pixel, TemporaryDimensionData& data);

    /// The extent along x of a rectangle with sides along the plane's axes; never negative. The
    /// dimension line runs outside the rectangle beside its side through `corner`; if the view has
    /// no room there, beside the opposite side or inside. `opposite` is the cursor.
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

/// Generates the graphics of dimensions of transformations, in the same way.
class VESK_HOST_API TemporaryDimensionCommonsUtils
{
public:
    /// The rotation about `centre` from the direction of `from` to that of `to`, the cursor, in
    /// degrees above -180 up to 180, counter-clockwise when positive; 0 if `from` or `to` is the
    /// centre. Drawn as an arc with an arrow at its end and a line to each point, or further if the
    /// arc lies beyond the point.
    static OwnerPtr<IGraphicsNodeGroup>
    GenerateRotationDimension(const Vector3d& centre, const Vector3d& from, const Vector3d& to,
                              const Coordinate3d& coordinate, InputState state,
                              const TemporaryDimensionStyle& style, double pixel,
                              TemporaryDimensionData& data);
};

}
