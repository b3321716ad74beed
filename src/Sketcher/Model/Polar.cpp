#include "Model/Polar.h"

#include "Geometry/Degrees.h"

#include <cmath>

using vesk::Degrees;
using vesk::Vector3d;

Vector3d DirectionOf(double degrees)
{
    return {Degrees::Cosine(degrees), Degrees::Sine(degrees), 0.0};
}

double HeldAngle(double degrees)
{
    constexpr double Step = 15.0;
    const double held = std::round(degrees / Step) * Step;
    return held <= -180.0 ? 180.0 : held;
}

double AngleOf(const Vector3d& direction)
{
    return AngleBetween(Vector3d::UnitX(), direction);
}

double AngleBetween(const Vector3d& from, const Vector3d& to)
{
    constexpr auto PerRadian = static_cast<double>(Degrees::PerRadian);
    const double degrees = std::atan2(QuarterTurned(from).dot(to), from.dot(to)) * PerRadian;
    // An angle just beyond 180 degrees is rounded to -180, which is the other direction.
    return degrees <= -180.0 ? 180.0 : degrees;
}

Vector3d QuarterTurned(const Vector3d& way)
{
    return {-way.y(), way.x(), 0.0};
}
