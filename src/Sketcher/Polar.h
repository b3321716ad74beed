#pragma once

#include "Geometry/Vector3d.h"

/// The unit vector of the drawing plane at an angle in degrees, counter-clockwise from x. Exact at
/// every quarter turn.
vesk::Vector3d DirectionOf(double degrees);

/// The angle of a vector of the drawing plane, in degrees above -180 up to 180.
double AngleOf(const vesk::Vector3d& direction);
