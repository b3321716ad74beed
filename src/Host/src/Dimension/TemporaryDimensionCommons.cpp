#include "Dimension/TemporaryDimensionCommons.h"

#include "Dimension/DimensionDrawing.h"
#include "Dimension/EditorPlacement.h"
#include "Dimension/TemporaryDimensionData.h"
#include "Dimension/TemporaryDimensionStyle.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace vesk
{

namespace
{

// In pixels.
constexpr double s_arrowSize = 8.0;
constexpr double s_leastOffset = 28.0;
constexpr double s_extensionGap = 4.0;
constexpr double s_extensionOvershoot = 6.0;
constexpr double s_arcRadius = 60.0;
constexpr double s_baseLineOvershoot = 12.0;
constexpr double s_textGap = 12.0;

/// The part of the segment that the arc may take.
constexpr double s_arcPart = 0.6;

/// Below this angle no text has room between the two sides.
constexpr double s_narrowRadians = 0.7;

constexpr double s_degreesPerRadian = 57.295779513082320877;

/// The angle to the x axis in radians, above -pi up to pi.
double AngleOf(const PlaneVector& along)
{
    // A negative zero would turn half a circle the other way round.
    return std::atan2(along.y() + 0.0, along.x());
}

PlaneVector DirectionOf(double angle)
{
    return {std::cos(angle), std::sin(angle)};
}

/// How far an editor must stand from a line so that it does not touch it, `normal` to the line.
double Clearance(const TemporaryDimensionStyle& style, const PlaneVector& normal)
{
    return style.GetEditorWidth() / 2.0 * std::abs(normal.x()) +
           style.GetEditorHeight() / 2.0 * std::abs(normal.y()) + s_textGap;
}

/// The parts of a length dimension that do not depend on the side on which it stands.
struct LengthLayout
{
    PlaneVector end;
    PlaneVector middle;
    PlaneVector visibleMiddle;
    PlaneVector offset; ///< From the segment to the dimension line, on the preferred side.
};

/// The offset on the side where the text finds room.
PlaneVector ChooseSide(const LengthLayout& layout, const DimensionDrawing& drawing,
                       const EditorPlacement& placement)
{
    const auto hasRoom = [&](const PlaneVector& offset) {
        return placement.Fits(drawing.ToWorld(layout.middle + offset)) ||
               placement.Fits(drawing.ToWorld(layout.visibleMiddle + offset));
    };
    const bool isOtherBetter = !hasRoom(layout.offset) && hasRoom(-layout.offset);
    return isOtherBetter ? PlaneVector(-layout.offset) : layout.offset;
}

void DrawLength(const LengthLayout& layout, const PlaneVector& offset, DimensionDrawing& drawing)
{
    const PlaneVector origin = PlaneVector::Zero();
    const double length = layout.end.norm();
    const PlaneVector direction = layout.end / length;
    const PlaneVector outwards = offset.normalized();
    const PlaneVector gap = s_extensionGap * outwards;
    const PlaneVector reach = offset + s_extensionOvershoot * outwards;
    drawing.AddLine(origin + gap, origin + reach);
    drawing.AddLine(layout.end + gap, layout.end + reach);
    drawing.AddLine(origin + offset, layout.end + offset);

    const double arrowSize = std::min(s_arrowSize, length / 3);
    drawing.AddArrow(origin + offset, -direction, arrowSize);
    drawing.AddArrow(layout.end + offset, direction, arrowSize);
}

void DrawAngle(double radius, double angle, DimensionDrawing& drawing)
{
    drawing.AddLine(PlaneVector::Zero(), PlaneVector(radius + s_baseLineOvershoot, 0.0));
    if (angle == 0.0)
        return;
    drawing.AddArc(radius, angle);
    const double turn = angle > 0.0 ? 1.0 : -1.0;
    const double arrowSize = std::min(s_arrowSize, radius * std::abs(angle) / 3);
    const PlaneVector direction = DirectionOf(angle);
    drawing.AddArrow(PlaneVector(radius, 0.0), PlaneVector(0.0, -turn), arrowSize);
    drawing.AddArrow(radius * direction, turn * TurnLeft(direction), arrowSize);
}

/// Where the text of an angle may stand, the best place first.
std::vector<PlaneVector> GetAnglePlaces(double radius, double angle,
                                        const TemporaryDimensionStyle& style)
{
    const PlaneVector bisector = DirectionOf(angle / 2);
    const double turn = angle >= 0.0 ? 1.0 : -1.0;
    const PlaneVector between = (radius + Clearance(style, bisector)) * bisector;
    const PlaneVector beside(radius, -turn * Clearance(style, PlaneVector::UnitY()));
    const PlaneVector behind(-Clearance(style, PlaneVector::UnitX()), beside.y());
    const PlaneVector beyond(radius + s_baseLineOvershoot + Clearance(style, PlaneVector::UnitX()),
                             0.0);
    if (std::abs(angle) < s_narrowRadians)
        return {beside, between, behind};
    return {between, beside, beyond, behind};
}

bool IsDrawable(const Vector3d& start, const Vector3d& end)
{
    return start.allFinite() && end.allFinite() && start != end;
}

}

OwnerPtr<IGraphicsNodeGroup> TemporaryDimensionCommons::GenerateLengthDimension(
    const Vector3d& start, const Vector3d& end, const Coordinate3d& coordinate, InputState state,
    const TemporaryDimensionStyle& style, double pixel, TemporaryDimensionData& data)
{
    DimensionDrawing drawing(start, coordinate, pixel, InputState::IS_Length, state);
    const PlaneVector along = drawing.ToPlane(end);
    const double pixels = along.norm();
    if (!IsDrawable(start, end) || !(pixels > 0.0))
        return drawing.Take();

    // The arc of the angle is on the other side of the segment.
    const double side = AngleOf(along) >= 0.0 ? 1.0 : -1.0;
    const PlaneVector normal = side * TurnLeft(along / pixels);
    const EditorPlacement placement(coordinate, end, style);
    const LengthLayout layout{along, along / 2,
                              drawing.ToPlane(placement.GetVisibleMiddle(start, end)),
                              std::max(s_leastOffset, Clearance(style, normal)) * normal};
    const PlaneVector offset = ChooseSide(layout, drawing, placement);
    DrawLength(layout, offset, drawing);

    TemporaryDimensionData::Entry& entry = data[InputState::IS_Length];
    entry.value = style.ToShown((end - start).norm());
    entry.textPosition = placement.Choose(
        {drawing.ToWorld(layout.middle + offset), drawing.ToWorld(layout.visibleMiddle + offset)});
    drawing.AddText(entry.textPosition, style.FormatLength(entry.value));
    return drawing.Take();
}

OwnerPtr<IGraphicsNodeGroup> TemporaryDimensionCommons::GenerateAngleDimension(
    const Vector3d& start, const Vector3d& end, const Coordinate3d& coordinate, InputState state,
    const TemporaryDimensionStyle& style, double pixel, TemporaryDimensionData& data)
{
    DimensionDrawing drawing(start, coordinate, pixel, InputState::IS_Angle, state);
    const PlaneVector along = drawing.ToPlane(end);
    if (!IsDrawable(start, end) || !along.allFinite())
        return drawing.Take();

    const double angle = AngleOf(along);
    const double radius = std::min(s_arcRadius, s_arcPart * along.norm());
    DrawAngle(radius, angle, drawing);

    EditorPlacement placement(coordinate, end, style);
    if (data[InputState::IS_Length].value > 0.0)
        placement.AvoidText(data[InputState::IS_Length].textPosition);
    std::vector<Vector3d> places;
    for (const PlaneVector& place : GetAnglePlaces(radius, angle, style))
        places.push_back(drawing.ToWorld(place));

    TemporaryDimensionData::Entry& entry = data[InputState::IS_Angle];
    entry.value = angle * s_degreesPerRadian;
    entry.textPosition = placement.Choose(places);
    drawing.AddText(entry.textPosition, style.FormatAngle(entry.value) + L"\u00B0");
    return drawing.Take();
}

}
