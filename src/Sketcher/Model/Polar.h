#pragma once

#include "Geometry/Vector3d.h"

/// In radians.
constexpr double FullTurn = 6.283185307179586477;

/// The unit vector in the drawing plane at an angle in degrees, counter-clockwise from x. As exact
/// as doubles allow at every multiple of 15 degrees.
vesk::Vector3d DirectionOf(double degrees);

/// The multiple of 15 degrees nearest to an angle in (-180, 180], in the same range.
double HeldAngle(double degrees);

/// The angle of a vector in the drawing plane, in degrees, in (-180, 180].
double AngleOf(const vesk::Vector3d& direction);

/// The angle from one vector in the drawing plane to another, in degrees, in (-180, 180], positive
/// counter-clockwise; 0 if one has no direction.
double AngleBetween(const vesk::Vector3d& from, const vesk::Vector3d& to);

/// A vector in the drawing plane rotated 90 degrees counter-clockwise.
vesk::Vector3d QuarterTurned(const vesk::Vector3d& way);
