#include "Dimension/DimensionDrawing.h"
#include "Dimension/DimensionText.h"
#include "Dimension/EditorPlacement.h"
#include "Dimension/Measurement.h"
#include "Dimension/RadiusDimension.h"
#include "Dimension/TemporaryDimensionCommons.h"
#include "Dimension/TurnDimension.h"

namespace vesk
{

OwnerPtr<IGraphicsNodeGroup>
TemporaryDimensionCommons::GenerateCentralAngleDimensionForCenterEndArc(
    const Vector3d& centre, const Vector3d& start, const Vector3d& end, const Vector3d& cursor,
    bool hasRadiusLines, const Coordinate3d& coordinate, InputState state,
    const TemporaryDimensionStyle& style, double pixel, TemporaryDimensionData& data)
{
    DimensionDrawing drawing(centre, coordinate, pixel, InputState::IS_CentralAngle, state);
    if (!DimensionDrawing::AreDrawable({centre, start, end, cursor}))
        return drawing.Take();

    const PlaneVector from = drawing.ToPlane(start);
    const double angle = drawing.GetValue(MeasureTurn(coordinate, centre, start, end));
    const Turn turn = MakeTurn(from, angle, from.norm());
    if (hasRadiusLines)
    {
        DrawTurnSide(from, 0.0, drawing);
        DrawTurnSide(drawing.ToPlane(end), 0.0, drawing);
    }
    DrawTurn(turn, TurnArrows::Both, drawing);

    const EditorPlacement placement(coordinate, cursor, style);
    const Vector3d position = placement.Choose(GetTurnPlaces(turn, placement, drawing));
    PlaceAngleText(position, angle, style, drawing, data[InputState::IS_CentralAngle]);
    return drawing.Take();
}

OwnerPtr<IGraphicsNodeGroup> TemporaryDimensionCommons::GenerateRadiusDimensionForCenterEndArc(
    const Vector3d& centre, const Vector3d& start, const Vector3d& end, bool hasRadiusLine,
    const Coordinate3d& coordinate, InputState state, const TemporaryDimensionStyle& style,
    double pixel, TemporaryDimensionData& data)
{
    DimensionDrawing drawing(centre, coordinate, pixel, InputState::IS_Radius, state);
    if (!DimensionDrawing::AreDrawable({centre, start, end}))
        return drawing.Take();

    const bool isEndLeft = MeasureTurn(coordinate, centre, start, end) > 0.0;
    RadiusLeader leader;
    leader.tip = drawing.ToPlane(start);
    leader.isWhole = hasRadiusLine;
    leader.textSide = isEndLeft ? -1.0 : 1.0;
    DrawRadiusLeader(leader, drawing);

    EditorPlacement placement(coordinate, end, style);
    AvoidEarlierText(data[InputState::IS_CentralAngle], placement);
    const Vector3d position = placement.Choose(GetRadiusPlaces(leader, placement, drawing));
    PlaceRadiusText(position, MeasureRadius(coordinate, centre, start), style, drawing,
                    data[InputState::IS_Radius]);
    return drawing.Take();
}

}
