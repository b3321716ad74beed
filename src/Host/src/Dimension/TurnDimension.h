#pragma once

#include "Dimension/PlaneVector.h"
#include "Geometry/Vector3d.h"

#include <vector>

namespace vesk
{

class DimensionDrawing;
class EditorPlacement;

/// An angle about a drawing's origin, as the arc that shows it.
struct Turn
{
    PlaneVector from; ///< The direction in which it starts, a unit vector.
    double radians;   ///< Counter-clockwise when positive.
    double radius;    ///< Of the arc, in pixels.
};

/// The ends of the arc that have arrows.
enum class TurnArrows
{
    Both, ///< The angle between two directions.
    End,  ///< A rotation from one to the other.
};

/// An angle of `degrees`, shown by an arc that fits between sides of `sideLength` pixels. A zero
/// vector counts as the x axis.
Turn MakeTurn(const PlaneVector& from, double degrees, double sideLength);

/// The minimum length of a side for the arc to end on it.
double GetSideReach(const Turn& turn);

/// Draws the line from the origin to a point, extended to `reach` pixels if that is longer; nothing
/// for the origin itself.
void DrawTurnSide(const PlaneVector& point, double reach, DimensionDrawing& drawing);

/// Draws the arc with its arrows; nothing for an angle or a radius of zero.
void DrawTurn(const Turn& turn, TurnArrows arrows, DimensionDrawing& drawing);

/// The possible positions of the angle's text, best first.
std::vector<Vector3d> GetTurnPlaces(const Turn& turn, const EditorPlacement& placement,
                                    const DimensionDrawing& drawing);

}
