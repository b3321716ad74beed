#include "Dimension/DimensionDrawing.h"
#include "Dimension/DimensionText.h"
#include "Dimension/EditorPlacement.h"
#include "Dimension/Measurement.h"
#include "Dimension/TemporaryDimensionCommons.h"
#include "Dimension/TurnDimension.h"

#include <algorithm>

namespace vesk
{

OwnerPtr<IGraphicsNodeGroup> TemporaryDimensionCommonsUtils::GenerateRotationDimension(
    const Vector3d& centre, const Vector3d& from, const Vector3d& to,
    const Coordinate3d& coordinate, InputState state, const TemporaryDimensionStyle& style,
    double pixel, TemporaryDimensionData& data)
{
    DimensionDrawing drawing(centre, coordinate, pixel, InputState::IS_CentralAngle, state);
    if (!DimensionDrawing::AreDrawable({centre, from, to}))
        return drawing.Take();

    const PlaneVector start = drawing.ToPlane(from);
    const PlaneVector end = drawing.ToPlane(to);
    const double angle = drawing.GetValue(MeasureTurn(coordinate, centre, from, to));
    const Turn turn = MakeTurn(start, angle, std::max(start.norm(), end.norm()));
    DrawTurnSide(start, GetSideReach(turn), drawing);
    DrawTurnSide(end, GetSideReach(turn), drawing);
    DrawTurn(turn, TurnArrows::End, drawing);

    const EditorPlacement placement(coordinate, to, style);
    const Vector3d position = placement.Choose(GetTurnPlaces(turn, placement, drawing));
    PlaceAngleText(position, angle, style, drawing, data[InputState::IS_CentralAngle]);
    return drawing.Take();
}

}
