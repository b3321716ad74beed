#pragma once

#include <Geometry/Vector3d.h>

/// A straight line between two points, in millimetres.
struct Line
{
    vesk::Vector3d start;
    vesk::Vector3d end;
};
