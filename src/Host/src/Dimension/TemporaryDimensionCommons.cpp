#include "Dimension/TemporaryDimensionCommons.h"

#include "Dimension/DimensionDrawing.h"
#include "Dimension/DimensionText.h"
#include "Dimension/EditorPlacement.h"
#include "Dimension/Measurement.h"
#include "Dimension/StraightDimension.h"
#include "Dimension/TemporaryDimensionData.h"
#include "Dimension/TurnDimension.h"

namespace vesk
{

OwnerPtr<IGraphicsNodeGroup> TemporaryDimensionCommons::GenerateLengthDimension(
    const Vector3d& start, const Vector3d& end, const Coordinate3d& coordinate, InputState state,
    const TemporaryDimensionStyle& style, double pixel, TemporaryDimensionData& data)
{
    DimensionDrawing drawing(start, coordinate, pixel, InputState::IS_Length, state);
    const double length = MeasureDistance(start, end);
    if (!DimensionDrawing::AreDrawable({start, end}) || !(length > 0.0))
        return drawing.Take();
    PlaneVector along = drawing.ToPlane(end);
    // If the segment is perpendicular to the plane, no direction is better than another.
    if (along.isZero(0.0))
        along = drawing.ToPixels(length) * PlaneVector::UnitX();

    // The arc of the angle is on the other side of the segment.
    const double side = MeasureDirection(coordinate, start, end) >= 0.0 ? 1.0 : -1.0;
    const PlaneVector normal = side * TurnLeft(along.stableNormalized());
    const PlaneVector origin = PlaneVector::Zero();
    const EditorPlacement placement(coordinate, end, style);
    const std::vector<Vector3d> places = DrawStraightDimension(
        {{origin, along, normal}, {origin, along, -normal}}, placement, drawing);

    PlaceLengthText(placement.Choose(places), length, style, drawing, data[InputState::IS_Length]);
    return drawing.Take();
}

OwnerPtr<IGraphicsNodeGroup> TemporaryDimensionCommons::GenerateAngleDimension(
    const Vector3d& start, const Vector3d& end, const Coordinate3d& coordinate, InputState state,
    const TemporaryDimensionStyle& style, double pixel, TemporaryDimensionData& data)
{
    DimensionDrawing drawing(start, coordinate, pixel, InputState::IS_Angle, state);
    if (!DimensionDrawing::AreDrawable({start, end}) || start == end)
        return drawing.Take();

    const double angle = drawing.GetValue(MeasureDirection(coordinate, start, end));
    const Turn turn = MakeTurn(PlaneVector::UnitX(), angle, drawing.ToPlane(end).norm());
    DrawTurnSide(turn.from, GetSideReach(turn), drawing);
    DrawTurn(turn, TurnArrows::Both, drawing);

    EditorPlacement placement(coordinate, end, style);
    if (data[InputState::IS_Length].value > 0.0)
        placement.AvoidText(data[InputState::IS_Length].textPosition);
    const Vector3d position = placement.Choose(GetTurnPlaces(turn, placement, drawing));
    PlaceAngleText(position, angle, style, drawing, data[InputState::IS_Angle]);
    return drawing.Take();
}

}
