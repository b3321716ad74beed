#include "Model/ShapeMeasure.h"

#include "Model/ArcGeometry.h"
#include "Model/ShapePieces.h"

#include "Geometry/Constants.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <limits>

using vesk::Constants;
using vesk::Vector3d;

namespace
{

void Include(const Vector3d& point, ShapeBounds& bounds)
{
    bounds.low = bounds.low.cwiseMin(point);
    bounds.high = bounds.high.cwiseMax(point);
}

void Include(const LineShape& line, ShapeBounds& bounds)
{
    Include(line.start, bounds);
    Include(line.end, bounds);
}

/// Apart from its ends, an arc reaches farthest where it crosses the axes through its centre.
void Include(const ArcShape& arc, ShapeBounds& bounds)
{
    Include(arc.start, bounds);
    Include(arc.end, bounds);
    for (int axis = 0; axis < 3; ++axis)
    {
        const Vector3d along = Vector3d::Unit(axis);
        const Vector3d inPlane = along - along.dot(arc.normal) * arc.normal;
        if (inPlane.norm() <= Constants::DOUBLE_EPS)
            continue;
        const Vector3d spoke = arc.radius * inPlane.normalized();
        for (const Vector3d& point : {Vector3d(arc.centre + spoke), Vector3d(arc.centre - spoke)})
        {
            if (Spans(arc, point))
                Include(point, bounds);
        }
    }
}

double Distance(const LineShape& line, const Vector3d& point)
{
    const Vector3d way = line.end - line.start;
    const double along = (point - line.start).dot(way) / way.squaredNorm();
    return (line.start + std::clamp(along, 0.0, 1.0) * way - point).norm();
}

double Distance(const ArcShape& arc, const Vector3d& point)
{
    const double height = (point - arc.centre).dot(arc.normal);
    const double across = (point - arc.centre - height * arc.normal).norm();
    if (Spans(arc, point))
        return std::hypot(across - arc.radius, height);
    return std::min((arc.start - point).norm(), (arc.end - point).norm());
}

}

ShapeBounds BoundsOf(const Shape& shape)
{
    constexpr double Infinity = std::numeric_limits<double>::infinity();
    ShapeBounds bounds{Vector3d::Constant(Infinity), Vector3d::Constant(-Infinity)};
    VisitPieces(shape, [&bounds](const auto& piece) { Include(piece, bounds); });
    return bounds;
}

double DistanceTo(const Shape& shape, const Vector3d& point)
{
    double nearest = std::numeric_limits<double>::infinity();
    VisitPieces(shape,
                [&](const auto& piece) { nearest = std::min(nearest, Distance(piece, point)); });
    return nearest;
}
