#pragma once

#include "Model/Shape.h"

#include <string>

/// The names of a kind of shape.
struct ShapeKind
{
    std::wstring name;    ///< In files.
    std::wstring caption; ///< On screen; a source text.
};

const ShapeKind& KindOf(const Shape& shape);
