// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Model/Shape.h"

#include <vector>

/// A corner of a polyline in the drawing plane, in millimetres.
struct PolylineVertex
{
    vesk::Vector3d point = vesk::Vector3d::Zero();

    /// The tangent of a quarter of the angle of the arc to the next corner, positive for
    /// counter-clockwise; 0 for a straight line.
    double bulge = 0.0;
};

/// The shapes that a polyline consists of: one rectangle, or lines and arcs in order. Corners that
/// repeat the one before are ignored.
std::vector<Shape> ShapesOfPolyline(std::vector<PolylineVertex> vertices, bool isClosed);
