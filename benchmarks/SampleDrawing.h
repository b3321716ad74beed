#pragma once

#include "Model/SketchContent.h"

#include <cmath>
#include <random>

/// A sheet of 1600 x 1000 with so many entities strewn over it, or a larger one of the same
/// proportions: six tenths lines, two rectangles, one circles, one arcs, of all sizes up to the
/// greatest. The same each time.
inline SketchContent MakeSampleDrawing(long count, double sheetWidth = 1600.0,
                                       double greatestSize = 40.0)
{
    using vesk::Vector3d;
    std::mt19937 random(7);
    const auto between = [&random](double low, double high) {
        return low + (high - low) * (static_cast<double>(random()) / 4294967296.0);
    };
    SketchContent content;
    content.name = L"drawing";
    for (int id = 1; id <= count; ++id)
    {
        const Vector3d place(between(0.0, sheetWidth), between(0.0, 0.625 * sheetWidth), 0.0);
        const double size = between(4.0, greatestSize);
        const double angle = between(0.0, 6.28);
        const Vector3d way = size * Vector3d(std::cos(angle), std::sin(angle), 0.0);
        const Vector3d across = Vector3d(-way.y(), way.x(), 0.0) / 2.0;
        Shape shape = LineShape{place, place + way};
        if (id % 10 == 6 || id % 10 == 7)
            shape = RectangleShape{{place, place + way, place + way + across, place + across}};
        if (id % 10 == 8)
            shape = CircleShape{place, size / 2.0};
        if (id % 10 == 9)
            shape = ArcShape{place, size, place + way, place + 2.0 * across};
        content.entities.push_back({id, shape, Pen()});
    }
    content.lastId = static_cast<int>(count);
    return content;
}
