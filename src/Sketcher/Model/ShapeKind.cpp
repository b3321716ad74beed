#include "Model/ShapeKind.h"

const ShapeKind& KindOf(const Shape& shape)
{
    // In the order of the alternatives.
    static const ShapeKind s_kinds[std::variant_size_v<Shape>] = {
        {L"line", L"直线"},
        {L"circle", L"圆"},
        {L"arc", L"圆弧"},
        {L"rectangle", L"矩形"},
    };
    return s_kinds[shape.index()];
}
