#pragma once

#include "Geometry/Coordinate3d.h"
#include "Geometry/Vector3d.h"

#include <Eigen/Core>

#include <optional>

namespace vesk
{

/// What dimensions show, measured between model points: millimetres and degrees.
///
/// Even far from the origin the result is as exact as the coordinates: all digits but the last are
/// correct. With `coordinate`, measurements are in its plane; the points' distance from it is
/// ignored.

/// The distance in space.
double MeasureDistance(const Vector3d& start, const Vector3d& end);

/// The distance along a unit vector; negative in the opposite direction.
double MeasureAlong(const Vector3d& axis, const Vector3d& start, const Vector3d& end);

/// The distance in the plane.
double MeasureRadius(const Coordinate3d& coordinate, const Vector3d& centre, const Vector3d& point);

/// The direction of a segment from the x axis, above -180 up to 180; 0 if the points are at most
/// DOUBLE_EPS apart.
double MeasureDirection(const Coordinate3d& coordinate, const Vector3d& start, const Vector3d& end);

/// The rotation from the direction of `from` to that of `to`, above -180 up to 180; 0 if one of
/// them is at most DOUBLE_EPS from the centre.
double MeasureTurn(const Coordinate3d& coordinate, const Vector3d& centre, const Vector3d& from,
                   const Vector3d& to);

/// The circle through three points.
struct MeasuredCircle
{
    Eigen::Vector2d centre; ///< Along the plane's x and y, relative to the third point.
    double radius;

    /// Of the arc from the first point to the second through the third; above -360 and below 360.
    double sweep;
};

/// Nothing if the points are collinear or the radius is greater than MAX_MODEL_SIZE.
std::optional<MeasuredCircle> MeasureCircle(const Coordinate3d& coordinate, const Vector3d& first,
                                            const Vector3d& second, const Vector3d& third);

}
