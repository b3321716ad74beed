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
    /// Degrees per radian.
    static constexpr long double PerRadian = 57.295779513082320876798154814105L;

    /// Of any angle; from -1 to 1.
    static double Sine(double degrees);

    /// Of any angle; from -1 to 1.
    static double Cosine(double degrees);

    /// Of any angle; not finite at 90 degrees and every half turn from there.
    static double Tangent(double degrees);

    /// From -90 to 90.
    static double ArcSine(double sine);

    /// From 0 to 180.
    static double ArcCosine(double cosine);

    /// Between -90 and 90.
    static double ArcTangent(double tangent);
};

}
