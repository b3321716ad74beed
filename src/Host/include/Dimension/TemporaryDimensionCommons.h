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
/// `pixel` is the world width of one pixel. `state` is the value that is being typed; its graphics
/// stand out and its text is left out, since the editor stands in its place. A value that is locked
/// shows it.
///
/// Each operation fills its entry of `data`: the value, in the unit shown or in degrees, as exact
/// as the points are, and the text's position. Lengths are distances in space; everything else is
/// measured in the plane, however far the points are off it. The position is such that the editor
/// lies inside the current view and off the cursor, in views of at least 300 x 200 pixels, and off
/// the text of the dimension that is made before: angle after length, height after width, a radius
/// after the central angle of an arc about a centre, the central angle of other arcs after the
/// radius.
///
/// Where there is nothing to measure, a position for the editor is found all the same, unless an
/// operation says otherwise. A point that is no finite number gives an empty group and leaves
/// `data`.
class VESK_HOST_API TemporaryDimensionCommons
{
public:
    /// The distance between two points; the dimension line runs beside the segment, or along x when
    /// the segment is at right angles to the plane. Equal points give an empty group and leave
    /// `data`. `end` is the cursor.
    static OwnerPtr<IGraphicsNodeGroup>
    GenerateLengthDimension(const Vector3d& start, const Vector3d& end,
                            const Coordinate3d& coordinate, InputState state,
                            const TemporaryDimensionStyle& style, double pixel,
                            TemporaryDimensionData& data);

    /// The angle of the segment to the x axis, counter-clockwise, in degrees above -180 up to 180,
    /// as an arc about the start point. Equal points give an empty group and leave `data`. `end` is
    /// the cursor.
    static OwnerPtr<IGraphicsNodeGroup>
    GenerateAngleDimension(const Vector3d& start, const Vector3d& end,
                           const Coordinate3d& coordinate, InputState state,
                           const TemporaryDimensionStyle& style, double pixel,
                           TemporaryDimensionData& data);

    /// The radius of the circle through three points, as an arrow from the centre to `third`, the
    /// cursor. Where the points lie on one line, or on a circle greater than MAX_MODEL_SIZE,
    /// nothing is drawn and the value is 0.
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
    /// counter-clockwise when positive; 0 where one of the points is the centre. `end` lies in the
    /// direction of `cursor`, which the text keeps off. With `hasRadiusLines` the lines from the
    /// centre to both ends are drawn too.
    static OwnerPtr<IGraphicsNodeGroup> GenerateCentralAngleDimensionForCenterEndArc(
        const Vector3d& centre, const Vector3d& start, const Vector3d& end, const Vector3d& cursor,
        bool hasRadiusLines, const Coordinate3d& coordinate, InputState state,
        const TemporaryDimensionStyle& style, double pixel, TemporaryDimensionData& data);

    /// The radius of the circle about `centre` through `start`, as an arrow to `start`: from the
    /// centre with `hasRadiusLine`, else a short one. The text keeps off `end`, where the arc ends,
    /// and stands on the other side of the radius where there is room. The value is not for typing:
    /// the text may be over a cursor that is elsewhere than at `end`.
    static OwnerPtr<IGraphicsNodeGroup> GenerateRadiusDimensionForCenterEndArc(
        const Vector3d& centre, const Vector3d& start, const Vector3d& end, bool hasRadiusLine,
        const Coordinate3d& coordinate, InputState state, const TemporaryDimensionStyle& style,
        double pixel, TemporaryDimensionData& data);

    /// The extent along x of a rectangle with sides along the plane's axes; never negative. The
    /// dimension line runs outside the rectangle beside its side through `corner`; where the view
    /// has no room there, beside the other one or inside. `opposite` is the cursor.
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
    /// The angle by which the direction of `from` turns to that of `to`, the cursor, about
    /// `centre`, in degrees above -180 up to 180, counter-clockwise when positive; 0 where one of
    /// the points is the centre. An arc with an arrow at its end and a line to either point, or
    /// further where the arc is beyond the point.
    static OwnerPtr<IGraphicsNodeGroup>
    GenerateRotationDimension(const Vector3d& centre, const Vector3d& from, const Vector3d& to,
                              const Coordinate3d& coordinate, InputState state,
                              const TemporaryDimensionStyle& style, double pixel,
                              TemporaryDimensionData& data);
};

}
