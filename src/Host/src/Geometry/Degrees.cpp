#include "Geometry/Degrees.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <limits>

namespace vesk
{

namespace
{

constexpr double FullTurn = 360.0;
constexpr double HalfTurn = 180.0;
constexpr double RightAngle = 90.0;
constexpr double Step = 15.0;

/// Values at 0, 15, 30 … 90 degrees, with more digits than a double has.
using Table = std::array<double, 7>;
constexpr Table Sines{0.0,
                      0.25881904510252076235,
                      0.5,
                      0.70710678118654752440,
                      0.86602540378443864676,
                      0.96592582628906828675,
                      1.0};
constexpr Table Cosines{Sines[6], Sines[5], Sines[4], Sines[3], Sines[2], Sines[1], Sines[0]};
constexpr Table Tangents{0.0,
                         0.26794919243112270647,
                         0.57735026918962576451,
                         1.0,
                         1.7320508075688772935,
                         3.7320508075688772935,
                         std::numeric_limits<double>::infinity()};

/// The function of an angle from 0 to 90 degrees.
double Compute(const Table& table, long double (*pFunction)(long double), double degrees)
{
    const double steps = degrees / Step;
    if (steps == std::floor(steps))
        return table[static_cast<std::size_t>(steps)];
    return static_cast<double>(pFunction(degrees / Degrees::PerRadian));
}

/// Zero has no sign.
double WithSign(double size, bool isNegative)
{
    return isNegative && size != 0.0 ? -size : size;
}

/// Returns whole degrees wherever the result differs from them only by rounding.
double Invert(double argument, long double radians, double (*pFunction)(double))
{
    constexpr double Rounding = 4 * std::numeric_limits<double>::epsilon();
    const auto degrees = static_cast<double>(radians * Degrees::PerRadian);
    const double whole = std::round(degrees);
    const bool isWhole =
        pFunction(whole) == argument || std::abs(degrees - whole) <= Rounding * std::abs(whole);
    return isWhole ? whole + 0.0 : degrees;
}

}

double Degrees::Sine(double degrees)
{
    const double rest = std::remainder(degrees, FullTurn);
    const double size = std::abs(rest);
    const double sharp = size > RightAngle ? HalfTurn - size : size;
    return WithSign(Compute(Sines, &std::sin, sharp), rest < 0.0);
}

double Degrees::Cosine(double degrees)
{
    const double size = std::abs(std::remainder(degrees, FullTurn));
    const bool isObtuse = size > RightAngle;
    const double sharp = isObtuse ? HalfTurn - size : size;
    return WithSign(Compute(Cosines, &std::cos, sharp), isObtuse);
}

double Degrees::Tangent(double degrees)
{
    const double rest = std::remainder(degrees, HalfTurn);
    return WithSign(Compute(Tangents, &std::tan, std::abs(rest)), rest < 0.0);
}

double Degrees::ArcSine(double sine)
{
    return Invert(sine, std::asin(static_cast<long double>(sine)), &Sine);
}

double Degrees::ArcCosine(double cosine)
{
    return Invert(cosine, std::acos(static_cast<long double>(cosine)), &Cosine);
}

double Degrees::ArcTangent(double tangent)
{
    return Invert(tangent, std::atan(static_cast<long double>(tangent)), &Tangent);
}

}
