#include "Model/ShapeProperty.h"

#include "Model/Polar.h"
#include "Model/ShapeRotation.h"
#include "Model/UiText.h"

#include <algorithm>
#include <array>

using namespace vesk;

namespace
{

using Properties = std::vector<ShapeProperty>;

/// A vector of that length in a direction. A negative length would reverse it, so it gives zero.
Vector3d Along(const Vector3d& direction, double length)
{
    return std::max(length, 0.0) * direction.normalized();
}

template <class Kind, Vector3d Kind::*point, int axis>
ShapeProperty Coordinate(const wchar_t* name, const wchar_t* caption)
{
    return {name, caption, false,
            [](const Shape& shape) { return (std::get<Kind>(shape).*point)[axis]; },
            [](const Shape& shape, double value) -> Shape {
                Kind changed = std::get<Kind>(shape);
                (changed.*point)[axis] = value;
                return changed;
            }};
}

const LineShape& LineOf(const Shape& shape)
{
    return std::get<LineShape>(shape);
}

ShapeProperty LineLength()
{
    return {L"length", L"长度"_source, false,
            [](const Shape& shape) { return (LineOf(shape).end - LineOf(shape).start).norm(); },
            [](const Shape& shape, double value) -> Shape {
                LineShape line = LineOf(shape);
                line.end = line.start + Along(line.end - line.start, value);
                return line;
            }};
}

ShapeProperty LineAngle()
{
    return {L"angle", L"角度"_source, true,
            [](const Shape& shape) { return AngleOf(LineOf(shape).end - LineOf(shape).start); },
            [](const Shape& shape, double value) -> Shape {
                LineShape line = LineOf(shape);
                line.end = line.start + (line.end - line.start).norm() * DirectionOf(value);
                return line;
            }};
}

/// Moves an arc so that its centre has the new coordinate.
template <int axis>
ShapeProperty ArcCentre(const wchar_t* name, const wchar_t* caption)
{
    return {name, caption, false,
            [](const Shape& shape) { return std::get<ArcShape>(shape).centre[axis]; },
            [](const Shape& shape, double value) -> Shape {
                ArcShape arc = std::get<ArcShape>(shape);
                const double shift = value - arc.centre[axis];
                arc.centre[axis] = value;
                arc.start[axis] += shift;
                arc.end[axis] += shift;
                return arc;
            }};
}

/// Changes the radius of an arc; centre and angles stay.
ShapeProperty ArcRadius()
{
    return {L"radius", L"半径"_source, false,
            [](const Shape& shape) { return std::get<ArcShape>(shape).radius; },
            [](const Shape& shape, double value) -> Shape {
                ArcShape arc = std::get<ArcShape>(shape);
                arc.start = arc.centre + Along(arc.start - arc.centre, value);
                arc.end = arc.centre + Along(arc.end - arc.centre, value);
                arc.radius = value;
                return arc;
            }};
}

ShapeProperty CircleRadius()
{
    return {L"radius", L"半径"_source, false,
            [](const Shape& shape) { return std::get<CircleShape>(shape).radius; },
            [](const Shape& shape, double value) -> Shape {
                CircleShape circle = std::get<CircleShape>(shape);
                circle.radius = value;
                return circle;
            }};
}

/// Moves a rectangle so that its first corner has the new coordinate.
template <int axis>
ShapeProperty RectangleCorner(const wchar_t* name, const wchar_t* caption)
{
    return {name, caption, false,
            [](const Shape& shape) { return std::get<RectangleShape>(shape).corners[0][axis]; },
            [](const Shape& shape, double value) -> Shape {
                RectangleShape rectangle = std::get<RectangleShape>(shape);
                const double shift = value - rectangle.corners[0][axis];
                for (Vector3d& corner : rectangle.corners)
                    corner[axis] += shift;
                return rectangle;
            }};
}

/// The side of a rectangle from its first corner to the corner of that index. Changing its length
/// moves the opposite side.
template <int corner>
ShapeProperty RectangleSide(const wchar_t* name, const wchar_t* caption)
{
    return {name, caption, false,
            [](const Shape& shape) {
                const auto& corners = std::get<RectangleShape>(shape).corners;
                return (corners[corner] - corners[0]).norm();
            },
            [](const Shape& shape, double value) -> Shape {
                RectangleShape rectangle = std::get<RectangleShape>(shape);
                auto& corners = rectangle.corners;
                const Vector3d side = corners[corner] - corners[0];
                const Vector3d across = corners[4 - corner] - corners[0];
                corners[corner] = corners[0] + Along(side, value);
                corners[2] = corners[corner] + across;
                return rectangle;
            }};
}

const Properties& LineProperties()
{
    static const Properties s_properties = {
        Coordinate<LineShape, &LineShape::start, 0>(L"start.x", L"起点 X"_source),
        Coordinate<LineShape, &LineShape::start, 1>(L"start.y", L"起点 Y"_source),
        Coordinate<LineShape, &LineShape::end, 0>(L"end.x", L"端点 X"_source),
        Coordinate<LineShape, &LineShape::end, 1>(L"end.y", L"端点 Y"_source),
        LineLength(),
        LineAngle(),
    };
    return s_properties;
}

const Properties& CircleProperties()
{
    static const Properties s_properties = {
        Coordinate<CircleShape, &CircleShape::centre, 0>(L"centre.x", L"圆心 X"_source),
        Coordinate<CircleShape, &CircleShape::centre, 1>(L"centre.y", L"圆心 Y"_source),
        CircleRadius(),
    };
    return s_properties;
}

const Properties& ArcProperties()
{
    static const Properties s_properties = {
        ArcCentre<0>(L"centre.x", L"圆心 X"_source),
        ArcCentre<1>(L"centre.y", L"圆心 Y"_source),
        ArcRadius(),
    };
    return s_properties;
}

const Properties& RectangleProperties()
{
    static const Properties s_properties = {
        RectangleCorner<0>(L"corner.x", L"角点 X"_source),
        RectangleCorner<1>(L"corner.y", L"角点 Y"_source),
        RectangleSide<1>(L"width", L"宽度"_source),
        RectangleSide<3>(L"height", L"高度"_source),
    };
    return s_properties;
}

/// In the order of the kinds.
const auto& Tables()
{
    static const std::array s_tables = {&LineProperties(), &CircleProperties(), &ArcProperties(),
                                        &RectangleProperties()};
    static_assert(s_tables.size() == std::variant_size_v<Shape>);
    return s_tables;
}

const ShapeProperty* FindIn(const Properties& properties, const std::wstring& name)
{
    const auto found = std::find_if(properties.begin(), properties.end(),
                                    [&name](const auto& known) { return known.name == name; });
    return found != properties.end() ? &*found : nullptr;
}

}

const std::vector<ShapeProperty>& PropertiesOf(const Shape& shape)
{
    return *Tables()[shape.index()];
}

const ShapeProperty* FindProperty(const Shape& shape, const std::wstring& name)
{
    return FindIn(PropertiesOf(shape), name);
}

std::vector<ShapeProperty> AllProperties()
{
    Properties all;
    for (const Properties* pTable : Tables())
    {
        for (const ShapeProperty& property : *pTable)
        {
            if (FindIn(all, property.name) == nullptr)
                all.push_back(property);
        }
    }
    return all;
}
