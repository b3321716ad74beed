#pragma once

#include "Model/ArcGeometry.h"
#include "Model/Overloaded.h"
#include "Model/Shape.h"

#include <cstddef>

/// Calls `visitor` with each piece of a shape's outline, straight (LineShape) or round (ArcShape),
/// in drawing order.
template <class Visitor>
void VisitPieces(const Shape& shape, const Visitor& visitor)
{
    std::visit(Overloaded{
                   [&visitor](const LineShape& line) { visitor(line); },
                   [&visitor](const CircleShape& circle) { visitor(ToArc(circle)); },
                   [&visitor](const ArcShape& arc) { visitor(arc); },
                   [&visitor](const RectangleShape& rectangle) {
                       for (std::size_t i = 0; i < rectangle.corners.size(); ++i)
                           visitor(LineShape{rectangle.corners[i], rectangle.corners[(i + 1) % 4]});
                   },
               },
               shape);
}
