#include "Dimension/TurnDimension.h"

#include "Dimension/DimensionDrawing.h"
#include "Dimension/EditorPlacement.h"
#include "Geometry/Degrees.h"

#include <Eigen/Geometry>

#include <algorithm>
#include <cmath>

namespace vesk
{

namespace
{

// In pixels.
constexpr double ArcRadius = 60.0;
constexpr double SideOvershoot = 12.0;

/// The largest radius of the arc, as a fraction of the side length.
constexpr double ArcPart = 0.6;

/// Below this angle there is no room for a text between the two sides.
constexpr double NarrowRadians = 0.7;

PlaneVector DirectionAt(const Turn& turn, double radians)
{
    return Eigen::Rotation2Dd(radians) * turn.from;
}

}

Turn MakeTurn(const PlaneVector& from, double degrees, double sideLength)
{
    const double length = from.norm();
    const PlaneVector direction = length > 0.0 ? PlaneVector(from / length) : PlaneVector::UnitX();
    return {direction, static_cast<double>(degrees / Degrees::PerRadian),
            std::min(ArcRadius, ArcPart * sideLength)};
}

double GetSideReach(const Turn& turn)
{
    return turn.radius + SideOvershoot;
}

void DrawTurnSide(const PlaneVector& point, double reach, DimensionDrawing& drawing)
{
    const double length = point.norm();
    if (length > 0.0)
        drawing.AddLine(PlaneVector::Zero(), std::max(1.0, reach / length) * point);
}

void DrawTurn(const Turn& turn, TurnArrows arrows, DimensionDrawing& drawing)
{
    const double length = turn.radius * std::abs(turn.radians);
    if (!(length > 0.0))
        return;
    drawing.AddArc(turn.from, turn.radius, turn.radians);
    const double sense = turn.radians > 0.0 ? 1.0 : -1.0;
    const PlaneVector end = DirectionAt(turn, turn.radians);
    drawing.AddArrow(turn.radius * end, sense * TurnLeft(end), length);
    if (arrows == TurnArrows::Both)
        drawing.AddArrow(turn.radius * turn.from, -sense * TurnLeft(turn.from), length);
}

std::vector<Vector3d> GetTurnPlaces(const Turn& turn, const EditorPlacement& placement,
                                    const DimensionDrawing& drawing)
{
    const double sense = turn.radians >= 0.0 ? 1.0 : -1.0;
    const PlaneVector bisector = DirectionAt(turn, turn.radians / 2);
    const PlaneVector outwards = -sense * TurnLeft(turn.from);
    const PlaneVector offset = placement.GetClearance(outwards) * outwards;
    const double ahead = placement.GetClearance(turn.from);

    const PlaneVector between = (turn.radius + placement.GetClearance(bisector)) * bisector;
    const PlaneVector beside = turn.radius * turn.from + offset;
    const PlaneVector beyond = (GetSideReach(turn) + ahead) * turn.from;
    const PlaneVector behind = offset - ahead * turn.from;
    if (std::abs(turn.radians) < NarrowRadians)
        return {drawing.ToWorld(beside), drawing.ToWorld(between), drawing.ToWorld(behind)};
    return {drawing.ToWorld(between), drawing.ToWorld(beside), drawing.ToWorld(beyond),
            drawing.ToWorld(behind)};
}

}
