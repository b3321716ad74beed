#pragma once

#include "Model/Shape.h"
#include "Support/TestValues.h"

// How test failures print shapes.

inline char* toString(const LineShape& line)
{
    return vesk::test::ShowFields(QStringLiteral("line"), line.start, line.end);
}

inline char* toString(const CircleShape& circle)
{
    return vesk::test::ShowFields(QStringLiteral("circle"), circle.centre,
                                  vesk::test::Exactly{circle.radius}, circle.normal);
}

inline char* toString(const ArcShape& arc)
{
    return vesk::test::ShowFields(QStringLiteral("arc"), arc.centre,
                                  vesk::test::Exactly{arc.radius}, arc.start, arc.end, arc.normal);
}

inline char* toString(const RectangleShape& rectangle)
{
    return vesk::test::ShowFields(QStringLiteral("rectangle"), rectangle.corners);
}
