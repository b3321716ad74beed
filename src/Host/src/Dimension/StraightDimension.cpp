#include "Dimension/StraightDimension.h"

#include "Dimension/DimensionDrawing.h"
#include "Dimension/EditorPlacement.h"

#include <algorithm>

namespace vesk
{

namespace
{

// In pixels.
constexpr double LeastOffset = 28.0;
constexpr double ExtensionGap = 4.0;
constexpr double ExtensionOvershoot = 6.0;

/// The distances of the dimension line and the text from the side.
struct Offsets
{
    double line;
    double text;
};

/// The text is on the dimension line; outside it if it would hide the whole line.
Offsets GetOffsets(const MeasuredSide& side, const EditorPlacement& placement)
{
    const double clearance = placement.GetClearance(side.outwards);
    const bool isHidden =
        (side.end - side.start).norm() < placement.GetCover(TurnLeft(side.outwards));
    if (isHidden)
        return {LeastOffset, LeastOffset + clearance};
    const double offset = std::max(LeastOffset, clearance);
    return {offset, offset};
}

/// At the middle of the side, and at the middle of its visible part.
std::vector<Vector3d> GetPlaces(const MeasuredSide& side, const EditorPlacement& placement,
                                const DimensionDrawing& drawing)
{
    const PlaneVector offset = GetOffsets(side, placement).text * side.outwards;
    const PlaneVector middle = (side.start + side.end) / 2;
    const Vector3d visibleMiddle =
        placement.GetVisibleMiddle(drawing.ToWorld(side.start), drawing.ToWorld(side.end));
    return {drawing.ToWorld(middle + offset),
            drawing.ToWorld(drawing.ToPlane(visibleMiddle) + offset)};
}

void Draw(const MeasuredSide& side, double offset, DimensionDrawing& drawing)
{
    const double length = (side.end - side.start).norm();
    if (!(length > 0.0))
        return;
    const PlaneVector gap = ExtensionGap * side.outwards;
    const PlaneVector reach = (offset + ExtensionOvershoot) * side.outwards;
    drawing.AddLine(side.start + gap, side.start + reach);
    drawing.AddLine(side.end + gap, side.end + reach);

    const PlaneVector start = side.start + offset * side.outwards;
    const PlaneVector end = side.end + offset * side.outwards;
    drawing.AddLine(start, end);

    const PlaneVector direction = (side.end - side.start) / length;
    drawing.AddArrow(start, -direction, length);
    drawing.AddArrow(end, direction, length);
}

}

std::vector<Vector3d> DrawStraightDimension(const std::vector<MeasuredSide>& sides,
                                            const EditorPlacement& placement,
                                            DimensionDrawing& drawing)
{
    const auto hasRoom = [&](const MeasuredSide& side) {
        const std::vector<Vector3d> places = GetPlaces(side, placement, drawing);
        return std::any_of(places.begin(), places.end(),
                           [&](const Vector3d& place) { return placement.Fits(place); });
    };
    const auto found = std::find_if(sides.begin(), sides.end(), hasRoom);
    const MeasuredSide& side = found != sides.end() ? *found : sides.front();
    Draw(side, GetOffsets(side, placement).line, drawing);
    return GetPlaces(side, placement, drawing);
}

}
