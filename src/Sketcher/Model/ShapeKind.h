#pragma once

#include "Model/Shape.h"

#include <string>

/// What kinds of shapes are called.
struct ShapeKind
{
    std::wstring name;    ///< In files.
    std::wstring caption; ///< On screen.
};

const ShapeKind& KindOf(const Shape& shape);
