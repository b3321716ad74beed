#include "Model/ArcGeometry.h"

#include "Model/Polar.h"

#include <Eigen/Geometry>

#include <cmath>

using vesk::Vector3d;

ArcShape ToArc(const CircleShape& circle)
{
    // The start point lies along x if the plane allows it.
    const bool isAcrossX = std::abs(circle.normal.x()) > 0.9;
    const Vector3d axis = isAcrossX ? Vector3d(Vector3d::UnitY()) : Vector3d(Vector3d::UnitX());
    const Vector3d inPlane = axis - axis.dot(circle.normal) * circle.normal;
    const Vector3d point = circle.centre + circle.radius * inPlane.normalized();
    return {circle.centre, circle.radius, point, point, circle.normal};
}

Vector3d StartTangent(const ArcShape& arc)
{
    return arc.normal.cross(arc.start - arc.centre).normalized();
}

double AngleTo(const ArcShape& arc, const Vector3d& point)
{
    const Vector3d from = arc.start - arc.centre;
    const Vector3d to = point - arc.centre;
    const double angle = std::atan2(arc.normal.dot(from.cross(to)), from.dot(to));
    return angle < 0.0 ? angle + FullTurn : angle;
}

double SweepOf(const ArcShape& arc)
{
    const double angle = arc.start == arc.end ? 0.0 : AngleTo(arc, arc.end);
    return angle > 0.0 ? angle : FullTurn;
}

double CentralAngleOf(const ArcShape& arc)
{
    return SweepOf(arc) / FullTurn * 360.0;
}

Vector3d PointAt(const ArcShape& arc, double angle)
{
    return arc.centre + std::cos(angle) * (arc.start - arc.centre) +
           std::sin(angle) * arc.radius * StartTangent(arc);
}

bool Spans(const ArcShape& arc, const Vector3d& point)
{
    return AngleTo(arc, point) <= SweepOf(arc);
}
