#pragma once

#include "Model/Shape.h"

#include <string>
#include <vector>

/// A value of a shape that can be read and set.
struct ShapeProperty
{
    std::wstring name;    ///< In the journal, such as "start.x".
    std::wstring caption; ///< On screen; a source text.
    bool isAngle;         ///< In degrees; otherwise a length or coordinate in millimetres.

    double (*get)(const Shape& shape);

    /// The shape with another value, which may not be drawable.
    Shape (*set)(const Shape& shape, double value);
};

/// The properties of a shape, in display order. Properties that several kinds of shapes share have
/// the same name.
const std::vector<ShapeProperty>& PropertiesOf(const Shape& shape);

/// The property of that name; null if the shape has none.
const ShapeProperty* FindProperty(const Shape& shape, const std::wstring& name);

/// The properties of all kinds of shapes, each name once.
std::vector<ShapeProperty> AllProperties();
