#include "Dimension/DimensionDrawing.h"
#include "Dimension/DimensionText.h"
#include "Dimension/EditorPlacement.h"
#include "Dimension/Measurement.h"
#include "Dimension/StraightDimension.h"
#include "Dimension/TemporaryDimensionCommons.h"

#include <cmath>

namespace vesk
{

namespace
{

/// Where the dimension of the side along an axis of the plane may run: outside the rectangle beside
/// the corner or the opposite one, or inside.
std::vector<MeasuredSide> GetSides(const PlaneVector& opposite, const PlaneVector& axis)
{
    const PlaneVector along = opposite.dot(axis) * axis;
    const PlaneVector across = opposite - along;
    const PlaneVector acrossAxis = axis.reverse();
    const double side = opposite.dot(acrossAxis) >= 0.0 ? 1.0 : -1.0;
    const PlaneVector inwards = side * acrossAxis;
    const PlaneVector corner = PlaneVector::Zero();
    return {{corner, along, -inwards}, {across, opposite, inwards}, {corner, along, inwards}};
}

}

OwnerPtr<IGraphicsNodeGroup>
TemporaryDimensionCommons::GenerateWidthDimension(const Vector3d& corner, const Vector3d& opposite,
                                                  const Coordinate3d& coordinate, InputState state,
                                                  const TemporaryDimensionStyle& style,
                                                  double pixel, TemporaryDimensionData& data)
{
    DimensionDrawing drawing(corner, coordinate, pixel, InputState::IS_Width, state);
    if (!DimensionDrawing::AreDrawable({corner, opposite}))
        return drawing.Take();

    const EditorPlacement placement(coordinate, opposite, style);
    const std::vector<Vector3d> places = DrawStraightDimension(
        GetSides(drawing.ToPlane(opposite), PlaneVector::UnitX()), placement, drawing);
    const double width = std::abs(MeasureAlong(coordinate.GetX(), corner, opposite));
    PlaceLengthText(placement.Choose(places), width, style, drawing, data[InputState::IS_Width]);
    return drawing.Take();
}

OwnerPtr<IGraphicsNodeGroup>
TemporaryDimensionCommons::GenerateHeightDimension(const Vector3d& corner, const Vector3d& opposite,
                                                   const Coordinate3d& coordinate, InputState state,
                                                   const TemporaryDimensionStyle& style,
                                                   double pixel, TemporaryDimensionData& data)
{
    DimensionDrawing drawing(corner, coordinate, pixel, InputState::IS_Height, state);
    if (!DimensionDrawing::AreDrawable({corner, opposite}))
        return drawing.Take();

    EditorPlacement placement(coordinate, opposite, style);
    AvoidEarlierText(data[InputState::IS_Width], placement);
    const std::vector<Vector3d> places = DrawStraightDimension(
        GetSides(drawing.ToPlane(opposite), PlaneVector::UnitY()), placement, drawing);
    const double height = std::abs(MeasureAlong(coordinate.GetY(), corner, opposite));
    PlaceLengthText(placement.Choose(places), height, style, drawing, data[InputState::IS_Height]);
    return drawing.Take();
}

}
