#include "Model/ShapeTransform.h"

#include "Model/ShapePoints.h"

#include <utility>

using vesk::Vector3d;

Shape Translated(const Shape& shape, const Vector3d& way)
{
    Shape moved = shape;
    ChangePoints(moved, [&way](Vector3d& point) { point += way; });
    return moved;
}

Shape Mirrored(const Shape& shape, const Vector3d& onAxis, const Vector3d& direction)
{
    const double x = direction.x();
    const double y = direction.y();
    const double square = x * x + y * y;
    // The cosine and the sine of twice the axis's angle.
    const double cosine = (x * x - y * y) / square;
    const double sine = 2.0 * x * y / square;
    Shape mirrored = shape;
    ChangePoints(mirrored, [&](Vector3d& point) {
        const Vector3d spoke = point - onAxis;
        point = onAxis + Vector3d(cosine * spoke.x() + sine * spoke.y(),
                                  sine * spoke.x() - cosine * spoke.y(), spoke.z());
    });
    if (auto* pArc = std::get_if<ArcShape>(&mirrored))
        std::swap(pArc->start, pArc->end);
    return mirrored;
}
