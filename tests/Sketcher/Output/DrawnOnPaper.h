#pragma once

#include "Model/SketchContent.h"

#include <utility>

/// A drawing that consists of these shapes, with the default pen.
inline SketchContent ContentOf(std::vector<Shape> shapes)
{
    SketchContent content;
    for (Shape& shape : shapes)
        content.entities.push_back({++content.lastId, std::move(shape), Pen()});
    return content;
}
