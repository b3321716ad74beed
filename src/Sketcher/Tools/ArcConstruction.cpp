#include "Tools/ArcConstruction.h"

#include "Model/ArcGeometry.h"
#include "Model/Polar.h"
#include "Model/ShapeRotation.h"

#include <algorithm>
#include <cmath>
#include <utility>

using vesk::Vector3d;

namespace
{

std::optional<ArcShape> IfDrawable(const ArcShape& arc)
{
    return IsDrawable(arc) ? std::optional<ArcShape>(arc) : std::nullopt;
}

/// The chord of an arc, and values derived from it, a radius and a third point.
struct Chord
{
    Chord(const Vector3d& start, const Vector3d& end, double radius, const Vector3d& third)
        : half((end - start).norm() / 2), middle((start + end) / 2)
    {
        const Vector3d left = QuarterTurned(end - start).normalized();
        isLeft = left.dot(third - start) >= 0.0;
        outwards = isLeft ? left : Vector3d(-left);
        height = std::sqrt(std::max(0.0, (radius - half) * (radius + half)));
        // Seen from a point of the longer arc, the chord subtends an acute angle.
        if ((start - third).dot(end - third) > 0.0)
            height = -height;
    }

    double half;
    Vector3d middle;
    Vector3d outwards; ///< From the chord towards the arc.
    bool isLeft;
    double height; ///< From the centre to the chord; negative for the longer arc.
};

}

std::optional<ArcShape> ArcThrough(const Vector3d& start, const Vector3d& end,
                                   const Vector3d& point)
{
    const Vector3d a = end - start;
    const Vector3d b = point - start;
    const double area = QuarterTurned(b).dot(a);
    if (area == 0.0)
        return std::nullopt;
    const Vector3d spoke =
        (QuarterTurned(b) * a.squaredNorm() - QuarterTurned(a) * b.squaredNorm()) / (2.0 * area);
    ArcShape arc{start + spoke, spoke.norm(), start, end};
    if (area < 0.0)
        std::swap(arc.start, arc.end);
    return IfDrawable(arc);
}

std::optional<ArcShape> ArcOfRadius(const Vector3d& start, const Vector3d& end, double radius,
                                    const Vector3d& third)
{
    const Chord chord(start, end, radius, third);
    ArcShape arc{chord.middle - chord.height * chord.outwards, radius, start, end};
    // An arc that bulges to the left runs clockwise from `start` to `end`.
    if (chord.isLeft)
        std::swap(arc.start, arc.end);
    return IfDrawable(arc);
}

Vector3d TopOfArc(const Vector3d& start, const Vector3d& end, double radius, const Vector3d& third)
{
    const Chord chord(start, end, radius, third);
    // For the shorter arc in a form that avoids cancellation.
    const double rise = chord.height < 0.0 ? radius - chord.height
                                           : chord.half * chord.half / (radius + chord.height);
    return chord.middle + rise * chord.outwards;
}

std::optional<ArcShape> ArcByAngle(const Vector3d& centre, const Vector3d& start, double degrees)
{
    constexpr double Slack = 1.0;
    ArcShape arc{centre, (start - centre).norm(), start, Rotated(start, centre, degrees)};
    if (degrees < 0.0)
        std::swap(arc.start, arc.end);
    // A zero angle, one lost in rounding and one of more than 360 degrees end like another arc.
    const double missing = std::abs(degrees) - CentralAngleOf(arc);
    return std::abs(missing) <= Slack ? IfDrawable(arc) : std::nullopt;
}

std::optional<ArcShape> ArcBetween(const Vector3d& centre, const Vector3d& start,
                                   const Vector3d& end)
{
    ArcShape arc{centre, (start - centre).norm(), start, end};
    const double degrees = AngleBetween(start - centre, end - centre);
    if (degrees == 0.0)
        return std::nullopt;
    if (degrees < 0.0)
        std::swap(arc.start, arc.end);
    return IfDrawable(arc);
}
