#include "Dimension/DimensionDrawing.h"
#include "Dimension/DimensionText.h"
#include "Dimension/EditorPlacement.h"
#include "Dimension/Measurement.h"
#include "Dimension/RadiusDimension.h"
#include "Dimension/TemporaryDimensionCommons.h"
#include "Dimension/TurnDimension.h"

namespace vesk
{

namespace
{

Vector3d GetCentre(const MeasuredCircle& circle, const Vector3d& third,
                   const Coordinate3d& coordinate)
{
    return third + circle.centre.x() * coordinate.GetX() + circle.centre.y() * coordinate.GetY();
}

}

OwnerPtr<IGraphicsNodeGroup> TemporaryDimensionCommons::GenerateRadiusDimensionFor3PtArc(
    const Vector3d& first, const Vector3d& second, const Vector3d& third,
    const Coordinate3d& coordinate, InputState state, const TemporaryDimensionStyle& style,
    double pixel, TemporaryDimensionData& data)
{
    DimensionDrawing drawing(third, coordinate, pixel, InputState::IS_Radius, state);
    if (!DimensionDrawing::AreDrawable({first, second, third}))
        return drawing.Take();

    const EditorPlacement placement(coordinate, third, style);
    RadiusLeader leader;
    const std::optional<MeasuredCircle> circle = MeasureCircle(coordinate, first, second, third);
    if (!circle)
    {
        const Vector3d position = placement.Choose(GetRadiusPlaces(leader, placement, drawing));
        data[InputState::IS_Radius] = {position, 0.0};
        return drawing.Take();
    }
    leader.centre = drawing.ToPlane(GetCentre(*circle, third, coordinate));
    // The text is above the leader.
    leader.textSide = leader.centre.x() <= leader.tip.x() ? 1.0 : -1.0;
    DrawRadiusLeader(leader, drawing);
    const Vector3d position = placement.Choose(GetRadiusPlaces(leader, placement, drawing));
    PlaceRadiusText(position, circle->radius, style, drawing, data[InputState::IS_Radius]);
    return drawing.Take();
}

OwnerPtr<IGraphicsNodeGroup> TemporaryDimensionCommons::GenerateCentralAngleDimensionFor3PtArc(
    const Vector3d& first, const Vector3d& second, const Vector3d& third,
    const Coordinate3d& coordinate, InputState state, const TemporaryDimensionStyle& style,
    double pixel, TemporaryDimensionData& data)
{
    const bool isDrawable = DimensionDrawing::AreDrawable({first, second, third});
    const std::optional<MeasuredCircle> circle = MeasureCircle(coordinate, first, second, third);
    const Vector3d centre = circle ? GetCentre(*circle, third, coordinate) : third;
    DimensionDrawing drawing(centre, coordinate, pixel, InputState::IS_CentralAngle, state);
    if (!isDrawable)
        return drawing.Take();

    EditorPlacement placement(coordinate, third, style);
    AvoidEarlierText(data[InputState::IS_Radius], placement);
    if (!circle)
    {
        data[InputState::IS_CentralAngle] = {placement.Choose({third}), 0.0};
        return drawing.Take();
    }
    const PlaneVector from = drawing.ToPlane(first);
    const double angle = drawing.GetValue(circle->sweep);
    const Turn turn = MakeTurn(from, angle, from.norm());
    DrawTurnSide(from, 0.0, drawing);
    DrawTurnSide(drawing.ToPlane(second), 0.0, drawing);
    DrawTurn(turn, TurnArrows::Both, drawing);
    const Vector3d position = placement.Choose(GetTurnPlaces(turn, placement, drawing));
    PlaceAngleText(position, angle, style, drawing, data[InputState::IS_CentralAngle]);
    return drawing.Take();
}

}
