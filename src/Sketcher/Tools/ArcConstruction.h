#pragma once

#include "Model/Shape.h"

#include <optional>

/// Arcs of the drawing plane, as they are drawn. All run counter-clockwise about the world's z
/// axis: where the user went the other way, start and end are exchanged. Nothing where there is no
/// arc.

/// From `start` to `end` through a third point.
std::optional<ArcShape> ArcThrough(const vesk::Vector3d& start, const vesk::Vector3d& end,
                                   const vesk::Vector3d& point);

/// The arc of that radius from `start` to `end` that is most like the one through a third point: on
/// its side of the chord, to the left of the way when it is on neither, and the longer of the two
/// arcs there where that one is longer than half a turn.
std::optional<ArcShape> ArcOfRadius(const vesk::Vector3d& start, const vesk::Vector3d& end,
                                    double radius, const vesk::Vector3d& third);

/// The point of that arc which is farthest from the chord.
vesk::Vector3d TopOfArc(const vesk::Vector3d& start, const vesk::Vector3d& end, double radius,
                        const vesk::Vector3d& third);

/// About a centre from `start` by a central angle in degrees, clockwise when negative; by 360 or
/// -360 the whole turn.
std::optional<ArcShape> ArcByAngle(const vesk::Vector3d& centre, const vesk::Vector3d& start,
                                   double degrees);

/// The shorter arc about a centre from `start` to `end`.
std::optional<ArcShape> ArcBetween(const vesk::Vector3d& centre, const vesk::Vector3d& start,
                                   const vesk::Vector3d& end);
