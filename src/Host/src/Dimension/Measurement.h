#pragma once

#include "Geometry/Coordinate3d.h"
#include "Geometry/Vector3d.h"

#include <Eigen/Core>

#include <optional>

namespace vesk
{

/// What dimensions show, measured between model points: millimetres and degrees.
///
/// Far from the origin too the result is as good as the coordinates are: all but its own last place
/// is right. What `coordinate` measures lies in its plane; how far points are off it plays no part.

/// The distance in space.
double MeasureDistance(const Vector3d& start, const Vector3d& end);

/// How far it is along a unit vector; negative against it.
double MeasureAlong(const Vector3d& axis, const Vector3d& start, const Vector3d& end);

/// The distance in the plane.
double MeasureRadius(const Coordinate3d& coordinate, const Vector3d& centre, const Vector3d& point);

/// The direction of a segment: from the x axis, above -180 up to 180; 0 for points up
/// to DOUBLE_EPS apart.
double MeasureDirection(const Coordinate3d& coordinate, const Vector3d& start, const Vector3d& end);

/// The angle by which the direction of `from` turns to that of `to`, above -180 up to 180; 0 where
/// one of them is the centre or up to DOUBLE_EPS from it.
double MeasureTurn(const Coordinate3d& coordinate, const Vector3d& centre, const Vector3d& from,
                   const Vector3d& to);

/// The circle through three points.
struct MeasuredCircle
{
    Eigen::Vector2d centre; ///< Along the plane's x and y, from the third point.
    double radius;

    /// The arc from the first point to the second through the third; above -360 and below 360.
    double sweep;
};

/// Nothing where the points are on one line, or on a circle greater than the model.
std::optional<MeasuredCircle> MeasureCircle(const Coordinate3d& coordinate, const Vector3d& first,
                                            const Vector3d& second, const Vector3d& third);

}
