#include "Model/SnapPoints.h"

#include "Model/ArcGeometry.h"
#include "Model/Overloaded.h"
#include "Model/ShapePieces.h"

using vesk::Vector3d;

namespace
{

Vector3d MiddleOf(const LineShape& line)
{
    return (line.start + line.end) / 2;
}

Vector3d MiddleOf(const ArcShape& arc)
{
    return PointAt(arc, SweepOf(arc) / 2);
}

}

std::vector<Vector3d> EndsOf(const Shape& shape)
{
    using Points = std::vector<Vector3d>;
    return std::visit(
        Overloaded{
            [](const LineShape& line) {
                return Points{line.start, line.end};
            },
            [](const CircleShape&) { return Points{}; },
            [](const ArcShape& arc) {
                return arc.start == arc.end ? Points{arc.start} : Points{arc.start, arc.end};
            },
            [](const RectangleShape& rectangle) {
                return Points(rectangle.corners.begin(), rectangle.corners.end());
            },
        },
        shape);
}

std::vector<Vector3d> MiddlesOf(const Shape& shape)
{
    std::vector<Vector3d> middles;
    if (!std::holds_alternative<CircleShape>(shape))
        VisitPieces(shape, [&middles](const auto& piece) { middles.push_back(MiddleOf(piece)); });
    return middles;
}

std::optional<Vector3d> CentreOf(const Shape& shape)
{
    using Point = std::optional<Vector3d>;
    return std::visit(Overloaded{
                          [](const LineShape&) { return Point(); },
                          [](const CircleShape& circle) { return Point(circle.centre); },
                          [](const ArcShape& arc) { return Point(arc.centre); },
                          [](const RectangleShape& rectangle) {
                              return Point((rectangle.corners[0] + rectangle.corners[2]) / 2);
                          },
                      },
                      shape);
}
