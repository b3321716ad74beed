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
    PlaneVector from; ///< The direction in which it begins, a unit vector.
    double radians;   ///< Counter-clockwise when positive.
    double radius;    ///< Of the arc, in pixels.
};

/// At which ends of the arc there are arrows.
enum class TurnArrows
{
    Both, ///< The angle between two directions.
    End,  ///< A turn from one to the other.
};

/// The turn of some degrees, shown by an arc that fits between sides of a length in pixels. A
/// vector without direction counts as the x axis.
Turn MakeTurn(const PlaneVector& from, double degrees, double sideLength);

/// How long a side is at least so that the arc ends on it.
double GetSideReach(const Turn& turn);

/// Draws the line from the origin to a point, on to a length of `reach` pixels where that is
/// longer; nothing for the origin itself.
void DrawTurnSide(const PlaneVector& point, double reach, DimensionDrawing& drawing);

/// Draws the arc with its arrows; nothing for an angle or a radius of zero.
void DrawTurn(const Turn& turn, TurnArrows arrows, DimensionDrawing& drawing);

/// Where the text of the angle may stand, the best place first.
std::vector<Vector3d> GetTurnPlaces(const Turn& turn, const EditorPlacement& placement,
                                    const DimensionDrawing& drawing);

}
