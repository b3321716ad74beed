#pragma once

#include "Model/Shape.h"

/// A circle as an arc of the whole turn.
ArcShape ToArc(const CircleShape& circle);

/// The direction in which an arc leaves its start, of length one.
vesk::Vector3d StartTangent(const ArcShape& arc);

/// The angle from the start of an arc, about its normal, to the direction of a point: from 0 to
/// below a whole turn, in radians.
double AngleTo(const ArcShape& arc, const vesk::Vector3d& point);

/// The angle from start to end, above 0 up to the whole turn, in radians.
double SweepOf(const ArcShape& arc);

/// The same in degrees.
double CentralAngleOf(const ArcShape& arc);

/// The point at an angle from the start, in radians.
vesk::Vector3d PointAt(const ArcShape& arc, double angle);

/// True when the arc passes through the direction of a point, seen from the centre.
bool Spans(const ArcShape& arc, const vesk::Vector3d& point);
