#include "Model/ShapeKind.h"

#include "Model/UiText.h"

#include <iterator>

const ShapeKind& KindOf(const Shape& shape)
{
    // In the order of the alternatives.
    static const ShapeKind s_kinds[] = {
        {L"line", L"直线"_source},
        {L"circle", L"圆"_source},
        {L"arc", L"圆弧"_source},
        {L"rectangle", L"矩形"_source},
    };
    static_assert(std::size(s_kinds) == std::variant_size_v<Shape>);
    return s_kinds[shape.index()];
}
