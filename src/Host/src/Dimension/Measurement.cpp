#include "Dimension/Measurement.h"

#include "Geometry/Constants.h"

#include <algorithm>
#include <cmath>

namespace vesk
{

namespace
{

/// Keeps what doubles lose in differences and products, so that only the result is rounded.
using Wide = long double;
using WideVector2 = Eigen::Matrix<Wide, 2, 1>;
using WideVector3 = Eigen::Matrix<Wide, 3, 1>;

constexpr Wide s_degreesPerRadian = 57.295779513082320876798154814105L;

WideVector3 Difference(const Vector3d& start, const Vector3d& end)
{
    return end.cast<Wide>() - start.cast<Wide>();
}

WideVector2 PlaneDifference(const Coordinate3d& coordinate, const Vector3d& start,
                            const Vector3d& end)
{
    const WideVector3 difference = Difference(start, end);
    return {difference.dot(coordinate.GetX().cast<Wide>()),
            difference.dot(coordinate.GetY().cast<Wide>())};
}

Wide Cross(const WideVector2& a, const WideVector2& b)
{
    return a.x() * b.y() - a.y() * b.x();
}

/// The angle of (x, y) in degrees. Minus a half turn, exact or by rounding, is a half turn, and no
/// zero is negative: it would be shown with a sign.
double ToDegrees(Wide y, Wide x)
{
    const auto degrees = static_cast<double>(std::atan2(y + 0, x) * s_degreesPerRadian);
    return degrees > -180.0 ? degrees : 180.0;
}

/// The arc's angle is twice the turn of the path from the first point over the third to the second.
double MeasureSweep(const WideVector2& first, const WideVector2& second)
{
    const double leastFull = std::nextafter(360.0, 0.0);
    const Wide turn = std::atan2(Cross(-first, second), (-first).dot(second));
    return std::clamp(static_cast<double>(2 * turn * s_degreesPerRadian), -leastFull, leastFull);
}

}

double MeasureDistance(const Vector3d& start, const Vector3d& end)
{
    return static_cast<double>(Difference(start, end).norm());
}

double MeasureAlong(const Vector3d& axis, const Vector3d& start, const Vector3d& end)
{
    return static_cast<double>(Difference(start, end).dot(axis.cast<Wide>()));
}

double MeasureRadius(const Coordinate3d& coordinate, const Vector3d& centre, const Vector3d& point)
{
    return static_cast<double>(PlaneDifference(coordinate, centre, point).norm());
}

double MeasureDirection(const Coordinate3d& coordinate, const Vector3d& start, const Vector3d& end)
{
    const WideVector2 along = PlaneDifference(coordinate, start, end);
    return along.isZero(0) ? 0.0 : ToDegrees(along.y(), along.x());
}

double MeasureTurn(const Coordinate3d& coordinate, const Vector3d& centre, const Vector3d& from,
                   const Vector3d& to)
{
    const WideVector2 first = PlaneDifference(coordinate, centre, from);
    const WideVector2 second = PlaneDifference(coordinate, centre, to);
    const bool hasDirections = !first.isZero(0) && !second.isZero(0);
    return hasDirections ? ToDegrees(Cross(first, second), first.dot(second)) : 0.0;
}

std::optional<MeasuredCircle> MeasureCircle(const Coordinate3d& coordinate, const Vector3d& first,
                                            const Vector3d& second, const Vector3d& third)
{
    const WideVector2 a = PlaneDifference(coordinate, third, first);
    const WideVector2 b = PlaneDifference(coordinate, third, second);
    const WideVector2 chord = PlaneDifference(coordinate, first, second);
    const Wide area = 2 * Cross(a, b);
    const Wide radius = a.norm() * b.norm() * chord.norm() / std::abs(area);
    if (!(radius <= Wide(Constants::MAX_MODEL_SIZE)))
        return std::nullopt;

    const Wide aa = a.squaredNorm();
    const Wide bb = b.squaredNorm();
    const WideVector2 centre(aa * b.y() - bb * a.y(), bb * a.x() - aa * b.x());
    return MeasuredCircle{(centre / area).cast<double>(), static_cast<double>(radius),
                          MeasureSweep(a, b)};
}

}
