#pragma once

#include "Model/Shape.h"

#include <optional>

/// Construct arcs in the drawing plane. All run counter-clockwise about the world's z axis: if the
/// user drew the other way, start and end are exchanged. Nothing if there is no such arc.

/// From `start` to `end` through a third point.
std::optional<ArcShape> ArcThrough(const vesk::Vector3d& start, const vesk::Vector3d& end,
                                   const vesk::Vector3d& point);

/// The arc of that radius from `start` to `end` that is most like the one through a third point: on
/// the point's side of the chord, or left of the chord if the point is on neither side; and the
/// longer of the two arcs there if the one through the point is longer than a half circle.
std::optional<ArcShape> ArcOfRadius(const vesk::Vector3d& start, const vesk::Vector3d& end,
                                    double radius, const vesk::Vector3d& third);

/// The point of that arc farthest from the chord.
vesk::Vector3d TopOfArc(const vesk::Vector3d& start, const vesk::Vector3d& end, double radius,
                        const vesk::Vector3d& third);

/// About a centre from `start` by a central angle in degrees, clockwise if negative; 360 and -360
/// are a full circle.
std::optional<ArcShape> ArcByAngle(const vesk::Vector3d& centre, const vesk::Vector3d& start,
                                   double degrees);

/// The shorter arc about a centre from `start` to `end`.
std::optional<ArcShape> ArcBetween(const vesk::Vector3d& centre, const vesk::Vector3d& start,
                                   const vesk::Vector3d& end);
