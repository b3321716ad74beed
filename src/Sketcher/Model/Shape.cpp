#include "Model/Shape.h"

#include "Model/ArcGeometry.h"

#include "Geometry/Constants.h"

#include <algorithm>
#include <cmath>

using vesk::Constants;
using vesk::Vector3d;

namespace
{

/// Whether a size at a position is in range. Tolerant of rounding, so that a shape at the limit can
/// still be drawn after a rotation.
bool IsSize(double size, const Vector3d& place)
{
    const double rounding = 1e-15 * (size + place.norm());
    return std::isfinite(rounding) && size >= Constants::MIN_MODEL_SIZE - rounding &&
           size <= Constants::MAX_MODEL_SIZE + rounding;
}

/// The tolerance of a computed point: its rounding grows with its size and its distance from the
/// origin.
double Tolerance(double size, const Vector3d& place)
{
    return 1e-9 * size + 1e-14 * place.norm();
}

bool IsUnit(const Vector3d& normal)
{
    return std::abs(normal.norm() - 1.0) <= Constants::DOUBLE_EPS;
}

bool IsOnCircle(const ArcShape& arc, const Vector3d& point)
{
    const Vector3d spoke = point - arc.centre;
    const double tolerance = Tolerance(arc.radius, arc.centre);
    return std::abs(spoke.norm() - arc.radius) <= tolerance &&
           std::abs(spoke.dot(arc.normal)) <= tolerance;
}

struct Drawability
{
    bool operator()(const LineShape& line) const
    {
        return IsSize((line.end - line.start).norm(), line.start);
    }

    bool operator()(const CircleShape& circle) const
    {
        return circle.centre.allFinite() && IsSize(circle.radius, Vector3d::Zero()) &&
               IsUnit(circle.normal);
    }

    bool operator()(const ArcShape& arc) const
    {
        return (*this)(CircleShape{arc.centre, arc.radius, arc.normal}) &&
               IsOnCircle(arc, arc.start) && IsOnCircle(arc, arc.end) &&
               SweepOf(arc) * arc.radius >= Constants::MIN_MODEL_SIZE;
    }

    bool operator()(const RectangleShape& rectangle) const
    {
        const auto& [a, b, c, d] = rectangle.corners;
        const Vector3d width = b - a;
        const Vector3d height = c - b;
        const double longer = std::max(width.norm(), height.norm());
        const double tolerance = Tolerance(longer, b);
        return IsSize(width.norm(), b) && IsSize(height.norm(), b) &&
               (a + height - d).norm() <= tolerance &&
               std::abs(width.dot(height)) <= tolerance * longer;
    }
};

}

bool operator==(const LineShape& a, const LineShape& b)
{
    return a.start == b.start && a.end == b.end;
}

bool operator==(const CircleShape& a, const CircleShape& b)
{
    return a.centre == b.centre && a.radius == b.radius && a.normal == b.normal;
}

bool operator==(const ArcShape& a, const ArcShape& b)
{
    return a.centre == b.centre && a.radius == b.radius && a.start == b.start && a.end == b.end &&
           a.normal == b.normal;
}

bool operator==(const RectangleShape& a, const RectangleShape& b)
{
    return a.corners == b.corners;
}

bool IsDrawable(const Shape& shape)
{
    return std::visit(Drawability(), shape);
}
