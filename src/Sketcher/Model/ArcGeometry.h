#pragma once

#include "Model/Shape.h"

/// A circle as an arc of 360 degrees.
ArcShape ToArc(const CircleShape& circle);

/// The unit tangent of an arc at its start.
vesk::Vector3d StartTangent(const ArcShape& arc);

/// The angle from the start of an arc, about its normal, to the direction of a point: in radians,
/// from 0 to less than 2 pi.
double AngleTo(const ArcShape& arc, const vesk::Vector3d& point);

/// The angle from start to end in radians, more than 0 and at most 2 pi.
double SweepOf(const ArcShape& arc);

/// The same in degrees.
double CentralAngleOf(const ArcShape& arc);

/// The point at an angle from the start, in radians.
vesk::Vector3d PointAt(const ArcShape& arc, double angle);

/// True if, seen from the centre, the arc passes through the direction of a point.
bool Spans(const ArcShape& arc, const vesk::Vector3d& point);
