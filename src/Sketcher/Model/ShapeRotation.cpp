#include "Model/ShapeRotation.h"

#include "Model/Polar.h"
#include "Model/ShapePoints.h"

#include <cmath>

using vesk::Vector3d;

Vector3d Rotated(const Vector3d& point, const Vector3d& centre, double degrees)
{
    if (std::fmod(degrees, 360.0) == 0.0)
        return point;
    const Vector3d turned = DirectionOf(degrees);
    const Vector3d spoke = point - centre;
    return centre + Vector3d(turned.x() * spoke.x() - turned.y() * spoke.y(),
                             turned.y() * spoke.x() + turned.x() * spoke.y(), spoke.z());
}

Shape Rotated(const Shape& shape, const Vector3d& centre, double degrees)
{
    Shape rotated = shape;
    ChangePoints(rotated,
                 [&centre, degrees](Vector3d& point) { point = Rotated(point, centre, degrees); });
    return rotated;
}
