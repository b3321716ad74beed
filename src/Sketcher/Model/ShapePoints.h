#pragma once

#include "Model/Overloaded.h"
#include "Model/Shape.h"

/// Calls `change` with each point that a shape is made of, so that moving all of them moves the
/// shape.
template <class Change>
void ChangePoints(Shape& shape, const Change& change)
{
    std::visit(Overloaded{
                   [&change](LineShape& line) {
                       change(line.start);
                       change(line.end);
                   },
                   [&change](CircleShape& circle) { change(circle.centre); },
                   [&change](ArcShape& arc) {
                       change(arc.centre);
                       change(arc.start);
                       change(arc.end);
                   },
                   [&change](RectangleShape& rectangle) {
                       for (vesk::Vector3d& corner : rectangle.corners)
                           change(corner);
                   },
               },
               shape);
}
