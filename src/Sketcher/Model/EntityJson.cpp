#include "Model/EntityJson.h"

#include "Model/ShapeFields.h"
#include "Model/ShapeKind.h"

#include "Foundation/JsonText.h"

#include <cstddef>
#include <string_view>

using vesk::JsonText;

namespace
{

void AppendNumbers(std::string& text, double number)
{
    JsonText::AppendNumber(text, number);
}

void AppendNumbers(std::string& text, const vesk::Vector3d& point)
{
    text += '[';
    JsonText::AppendNumber(text, point.x());
    text += ',';
    JsonText::AppendNumber(text, point.y());
    text += ',';
    JsonText::AppendNumber(text, point.z());
    text += ']';
}

void AppendNumbers(std::string& text, const std::array<vesk::Vector3d, 4>& points)
{
    char separator = '[';
    for (const vesk::Vector3d& point : points)
    {
        text += separator;
        AppendNumbers(text, point);
        separator = ',';
    }
    text += ']';
}

std::string_view TextOf(bool is)
{
    return is ? "true" : "false";
}

}

void AppendFields(std::string& text, const Entity& entity)
{
    text += "\"type\":";
    JsonText::AppendString(text, KindOf(entity.shape).name);
    const auto append = [&text](std::string_view name, const auto& numbers) {
        text.append(",\"").append(name).append("\":");
        AppendNumbers(text, numbers);
    };
    Shape copy = entity.shape;
    std::visit([&append](auto& shape) { VisitFields(shape, append); }, copy);
    text += ',';
    AppendFields(text, entity.pen);
}

void AppendFields(std::string& text, const Pen& pen)
{
    for (const PenPart& part : PenParts())
    {
        JsonText::AppendString(text, part.name);
        text += ':';
        JsonText::AppendString(text, part.valueNames[static_cast<std::size_t>(pen.*part.member)]);
        text += ',';
    }
    text += "\"layer\":";
    JsonText::AppendNumber(text, pen.layer);
}

void AppendFields(std::string& text, const Layer& layer)
{
    text += "\"id\":";
    JsonText::AppendNumber(text, layer.id);
    text += ",\"name\":";
    JsonText::AppendString(text, layer.name);
    text += ",\"colour\":";
    JsonText::AppendString(text, LineColours()[static_cast<std::size_t>(layer.colour)].name);
    text.append(",\"visible\":").append(TextOf(layer.isVisible));
    text.append(",\"locked\":").append(TextOf(layer.isLocked));
}
