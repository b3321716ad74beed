#pragma once

#include "Geometry/Vector3d.h"

/// The unit vector of the drawing plane at an angle in degrees, counter-clockwise from x. As
/// exact as doubles are at every multiple of 15 degrees.
vesk::Vector3d DirectionOf(double degrees);

/// The angle of a vector of the drawing plane, in degrees above -180 up to 180.
double AngleOf(const vesk::Vector3d& direction);

/// The angle by which one vector of the drawing plane turns to another, in degrees above -180 up to
/// 180, counter-clockwise when positive; 0 when one has no direction.
double AngleBetween(const vesk::Vector3d& from, const vesk::Vector3d& to);

/// A vector of the drawing plane, a quarter turn counter-clockwise.
vesk::Vector3d QuarterTurned(const vesk::Vector3d& way);
