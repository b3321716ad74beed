#include "Dimension/Measurement.h"

#include "Geometry/Constants.h"
#include "Geometry/Degrees.h"

#include <Eigen/Geometry>

#include <algorithm>
#include <cmath>

namespace vesk
{

namespace
{

/// Keeps the digits that doubles lose in differences and products, so that only the result is
/// rounded.
using Wide = long double;
using WideVector = Eigen::Matrix<Wide, 3, 1>;

/// Points at most this far apart define no direction.
constexpr Wide SamePoint = Constants::DOUBLE_EPS;

/// The axes of a coordinate system are unit vectors up to rounding; this normalises one in wide
/// precision.
WideVector MakeUnit(const Vector3d& axis)
{
    return axis.cast<Wide>().normalized();
}

WideVector Difference(const Vector3d& start, const Vector3d& end)
{
    return end.cast<Wide>() - start.cast<Wide>();
}

/// The difference, projected along a unit normal.
WideVector Difference(const WideVector& normal, const Vector3d& start, const Vector3d& end)
{
    const WideVector difference = Difference(start, end);
    return difference - difference.dot(normal) * normal;
}

/// -180 degrees, exact or by rounding, becomes 180 degrees.
double ToDegrees(Wide y, Wide x)
{
    const auto degrees = static_cast<double>(std::atan2(y, x) * Degrees::PerRadian);
    return degrees > -180.0 ? degrees : 180.0;
}

/// The arc's sweep is twice the change of direction at the third point on the path from the first
/// point to the second.
double MeasureSweep(Wide y, Wide x)
{
    const double most = std::nextafter(360.0, 0.0);
    const auto degrees = static_cast<double>(2 * std::atan2(y, x) * Degrees::PerRadian);
    return std::clamp(degrees, -most, most);
}

}

double MeasureDistance(const Vector3d& start, const Vector3d& end)
{
    return static_cast<double>(Difference(start, end).norm());
}

double MeasureAlong(const Vector3d& axis, const Vector3d& start, const Vector3d& end)
{
    return static_cast<double>(Difference(start, end).dot(MakeUnit(axis)));
}

double MeasureRadius(const Coordinate3d& coordinate, const Vector3d& centre, const Vector3d& point)
{
    return static_cast<double>(Difference(MakeUnit(coordinate.GetZ()), centre, point).norm());
}

double MeasureDirection(const Coordinate3d& coordinate, const Vector3d& start, const Vector3d& end)
{
    const WideVector along = Difference(start, end);
    const Wide x = along.dot(MakeUnit(coordinate.GetX()));
    const Wide y = along.dot(MakeUnit(coordinate.GetY()));
    return std::hypot(x, y) > SamePoint ? ToDegrees(y, x) : 0.0;
}

double MeasureTurn(const Coordinate3d& coordinate, const Vector3d& centre, const Vector3d& from,
                   const Vector3d& to)
{
    const WideVector normal = MakeUnit(coordinate.GetZ());
    const WideVector first = Difference(normal, centre, from);
    const WideVector second = Difference(normal, centre, to);
    const bool hasDirections = first.norm() > SamePoint && second.norm() > SamePoint;
    return hasDirections ? ToDegrees(first.cross(second).dot(normal), first.dot(second)) : 0.0;
}

std::optional<MeasuredCircle> MeasureCircle(const Coordinate3d& coordinate, const Vector3d& first,
                                            const Vector3d& second, const Vector3d& third)
{
    const WideVector normal = MakeUnit(coordinate.GetZ());
    const WideVector a = Difference(normal, third, first);
    const WideVector b = Difference(normal, third, second);
    const WideVector chord = Difference(normal, first, second);
    const Wide area = 2 * a.cross(b).dot(normal);
    const Wide radius = a.norm() * b.norm() * chord.norm() / std::abs(area);
    if (!(radius <= Wide(Constants::MAX_MODEL_SIZE)))
        return std::nullopt;

    const WideVector centre = (a.squaredNorm() * b - b.squaredNorm() * a).cross(normal) / area;
    return MeasuredCircle{{static_cast<double>(centre.dot(MakeUnit(coordinate.GetX()))),
                           static_cast<double>(centre.dot(MakeUnit(coordinate.GetY())))},
                          static_cast<double>(radius),
                          MeasureSweep(-area / 2, -a.dot(b))};
}

}
