#include "Model/ShapeKind.h"

#include <iterator>

const ShapeKind& KindOf(const Shape& shape)
{
    // In the order of the alternatives.
    static const ShapeKind s_kinds[] = {
        {L"line", L"直线"},
        {L"circle", L"圆"},
        {L"arc", L"圆弧"},
        {L"rectangle", L"矩形"},
    };
    static_assert(std::size(s_kinds) == std::variant_size_v<Shape>);
    return s_kinds[shape.index()];
}
