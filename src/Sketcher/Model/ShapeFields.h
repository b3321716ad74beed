#pragma once

#include "Model/Shape.h"

/// Call `visit` with the name in files of each number, point and list of points of a shape and with
/// a reference to it, in the order of files.
template <class Visit>
void VisitFields(LineShape& line, const Visit& visit)
{
    visit("start", line.start);
    visit("end", line.end);
}

template <class Visit>
void VisitFields(CircleShape& circle, const Visit& visit)
{
    visit("centre", circle.centre);
    visit("radius", circle.radius);
    visit("normal", circle.normal);
}

template <class Visit>
void VisitFields(ArcShape& arc, const Visit& visit)
{
    visit("centre", arc.centre);
    visit("radius", arc.radius);
    visit("start", arc.start);
    visit("end", arc.end);
    visit("normal", arc.normal);
}

template <class Visit>
void VisitFields(RectangleShape& rectangle, const Visit& visit)
{
    visit("corners", rectangle.corners);
}
