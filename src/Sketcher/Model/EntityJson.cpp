#include "Model/EntityJson.h"

#include "Model/ShapeFields.h"
#include "Model/ShapeKind.h"

#include "Foundation/Text.h"

#include <cstddef>

using Json = nlohmann::ordered_json;

namespace
{

Json NumbersOf(double number)
{
    return number;
}

Json NumbersOf(const vesk::Vector3d& point)
{
    return {point.x(), point.y(), point.z()};
}

Json NumbersOf(const std::array<vesk::Vector3d, 4>& points)
{
    Json list = Json::array();
    for (const vesk::Vector3d& point : points)
        list.push_back(NumbersOf(point));
    return list;
}

void AddPen(Json& json, const Pen& pen)
{
    for (const PenPart& part : PenParts())
        json[vesk::ToUtf8(part.name)] =
            vesk::ToUtf8(part.valueNames[static_cast<std::size_t>(pen.*part.member)]);
    json["layer"] = pen.layer;
}

}

Json ToJson(const Entity& entity)
{
    Json json = {{"type", vesk::ToUtf8(KindOf(entity.shape).name)}};
    const auto add = [&json](const char* name, const auto& numbers) {
        json[name] = NumbersOf(numbers);
    };
    Shape copy = entity.shape;
    std::visit([&add](auto& shape) { VisitFields(shape, add); }, copy);
    AddPen(json, entity.pen);
    return json;
}

Json ToJson(const Pen& pen)
{
    Json json = Json::object();
    AddPen(json, pen);
    return json;
}

Json ToJson(const Layer& layer)
{
    return {{"id", layer.id},
            {"name", vesk::ToUtf8(layer.name)},
            {"colour", vesk::ToUtf8(LineColours()[static_cast<std::size_t>(layer.colour)].name)},
            {"visible", layer.isVisible},
            {"locked", layer.isLocked}};
}
