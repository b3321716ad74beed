#include "Model/ShapeRotation.h"

#include "Model/Overloaded.h"
#include "Model/Polar.h"

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
    const auto turn = [&centre, degrees](Vector3d& point) {
        point = Rotated(point, centre, degrees);
    };
    Shape rotated = shape;
    std::visit(Overloaded{
                   [&turn](LineShape& line) {
                       turn(line.start);
                       turn(line.end);
                   },
                   [&turn](CircleShape& circle) { turn(circle.centre); },
                   [&turn](ArcShape& arc) {
                       turn(arc.centre);
                       turn(arc.start);
                       turn(arc.end);
                   },
                   [&turn](RectangleShape& rectangle) {
                       for (Vector3d& corner : rectangle.corners)
                           turn(corner);
                   },
               },
               rotated);
    return rotated;
}
