#include "Model/Crossings.h"

#include "Model/Polar.h"
#include "Model/ShapeMeasure.h"

#include "Geometry/Constants.h"

#include <algorithm>
#include <cmath>

using vesk::Constants;
using vesk::Vector3d;

namespace
{

/// How far off an outline a computed point may be, given the rounding of numbers of that size.
double Tolerance(double size)
{
    return Constants::DOUBLE_EPS + 1e-12 * size;
}

/// Adds the points at `offset` on either side of `middle`; just one if they coincide.
void AddPair(const Vector3d& middle, const Vector3d& offset, Crossings& points)
{
    points.Add(middle + offset);
    if (!offset.isZero(0.0))
        points.Add(middle - offset);
}

/// Half the length of a chord at a distance from the centre of a circle; 0 for a tangent, negative
/// if there is no chord.
double HalfChord(double radius, double distance)
{
    if (distance > radius + Tolerance(radius))
        return -1.0;
    return std::sqrt(std::max(0.0, (radius - distance) * (radius + distance)));
}

/// The intersections of the infinite lines or full circles of two pieces.
Crossings CrossWhole(const LineShape& first, const LineShape& second)
{
    Crossings points;
    const Vector3d a = first.end - first.start;
    const Vector3d b = second.end - second.start;
    const double area = QuarterTurned(a).dot(b);
    if (area != 0.0)
        points.Add(first.start + QuarterTurned(second.start - first.start).dot(b) / area * a);
    return points;
}

Crossings CrossWhole(const LineShape& line, const ArcShape& arc)
{
    Crossings points;
    const Vector3d way = (line.end - line.start).normalized();
    const Vector3d foot = line.start + (arc.centre - line.start).dot(way) * way;
    const double half = HalfChord(arc.radius, (foot - arc.centre).norm());
    if (half >= 0.0)
        AddPair(foot, half * way, points);
    return points;
}

Crossings CrossWhole(const ArcShape& arc, const LineShape& line)
{
    return CrossWhole(line, arc);
}

Crossings CrossWhole(const ArcShape& first, const ArcShape& second)
{
    Crossings points;
    const Vector3d between = second.centre - first.centre;
    const double distance = between.norm();
    if (distance <= Tolerance(first.radius))
        return points;
    const double surplus = (first.radius - second.radius) * (first.radius + second.radius);
    const double along = (distance + surplus / distance) / 2.0;
    const double half = HalfChord(first.radius, std::abs(along));
    const Vector3d way = between / distance;
    if (half >= 0.0)
        AddPair(first.centre + along * way, half * QuarterTurned(way), points);
    return points;
}

double SizeOf(const LineShape& line)
{
    return std::max(line.start.norm(), line.end.norm());
}

double SizeOf(const ArcShape& arc)
{
    return arc.centre.norm() + arc.radius;
}

}

Crossings Cross(const Piece& first, const Piece& second)
{
    return std::visit(
        [](const auto& a, const auto& b) {
            const double tolerance = Tolerance(std::max(SizeOf(a), SizeOf(b)));
            Crossings onBoth;
            for (const Vector3d& point : CrossWhole(a, b))
            {
                if (DistanceTo(a, point) <= tolerance && DistanceTo(b, point) <= tolerance)
                    onBoth.Add(point);
            }
            return onBoth;
        },
        first, second);
}
