#pragma once

#include "Model/Shape.h"

#include <string>
#include <vector>

/// One value of a shape that can be read and set.
struct ShapeProperty
{
    std::wstring name;    ///< In the journal, as "start.x".
    std::wstring caption; ///< On screen.
    bool isAngle;         ///< In degrees; else a length or coordinate in millimetres.

    double (*get)(const Shape& shape);

    /// The shape with another value. It may be one that cannot be drawn.
    Shape (*set)(const Shape& shape, double value);
};

/// The values of a shape, in the order in which they are shown. Those that several kinds of shapes
/// have in common have the same name.
const std::vector<ShapeProperty>& PropertiesOf(const Shape& shape);

/// The value of that name; null when the shape has none.
const ShapeProperty* FindProperty(const Shape& shape, const std::wstring& name);

/// The values of all kinds of shapes, each name once.
std::vector<ShapeProperty> AllProperties();
