#pragma once

#include "Foundation/HostExport.h"

namespace vesk
{

/// Trigonometric functions of angles in degrees, and their inverses.
///
/// At every multiple of 15 degrees the results are the doubles nearest to the true values, unlike
/// with radians, and the inverse of such a value is exactly that angle. A zero result is never
/// negative. An undefined result is not finite.
class VESK_HOST_API Degrees
{
public:
    static constexpr long double PerRadian = 57.295779513082320876798154814105L;

    static double Sine(double degrees);
    static double Cosine(double degrees);
    static double Tangent(double degrees);

    /// From -90 to 90.
    static double ArcSine(double sine);

    /// From 0 to 180.
    static double ArcCosine(double cosine);

    /// Between -90 and 90.
    static double ArcTangent(double tangent);
};

}
