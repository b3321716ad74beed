#pragma once

#include "Model/SketchContent.h"

#include <cmath>
#include <random>

/// A drawing with an entity of each kind on two layers, and ids that were used before.
inline SketchContent MakeSampleContent()
{
    using vesk::Vector3d;
    const Vector3d up(0, 0, 1);
    SketchContent content;
    content.name = L"零件 1";
    content.layers = {Layer(), Layer{2, L"墙", 4, false, true}};
    content.entities = {
        {1, LineShape{{0.1, 0, 0}, {3, 4, 0}}, {}},
        {4, CircleShape{{1, 2, 0}, 1.0 / 3.0, up}, {1, 1, 4, 2}},
        {5, ArcShape{{0, 0, 0}, 5, {5, 0, 0}, {0, 5, 0}, up}, {0, 0, 2, 2}},
        {9, RectangleShape{{Vector3d(0, 0, 0), {8, 0, 0}, {8, 6, 0}, {0, 6, 0}}}, {3, 6, 8, 0}},
    };
    content.lastId = 12;
    content.lastLayerId = 3;
    content.currentPen = {1, 2, 3, 2};
    return content;
}

/// A drawing of lines, circles and rectangles anywhere; the same for the same seed.
inline SketchContent MakeRandomContent(unsigned seed, int count)
{
    using vesk::Vector3d;
    std::mt19937 random(seed);
    const auto number = [&random] {
        const double magnitude = std::uniform_real_distribution<>(-5, 7)(random);
        return std::pow(10.0, magnitude) * (random() % 2 == 0 ? 1 : -1);
    };
    const auto index = [&random](std::size_t size) { return static_cast<int>(random() % size); };
    SketchContent content;
    content.layers.push_back({7, L"\U0001F4D0", index(LineColours().size()), true, false});
    content.lastLayerId = 7;
    for (int i = 0; i < count; ++i)
    {
        const Vector3d from(number(), number(), number());
        const double size = std::abs(number());
        Shape shape = LineShape{from, {number(), number(), number()}};
        if (i % 3 == 1)
            shape = CircleShape{from, size, Vector3d::UnitX()};
        if (i % 3 == 2)
            shape = RectangleShape{{from, from + Vector3d(size, 0, 0),
                                    from + Vector3d(size, size, 0), from + Vector3d(0, size, 0)}};
        content.lastId += 1 + index(3);
        if (IsDrawable(shape))
            content.entities.push_back({content.lastId,
                                        shape,
                                        {index(LineStyles().size()), index(LineColours().size()),
                                         index(LineWidths().size()), random() % 2 == 0 ? 0 : 7}});
    }
    return content;
}
