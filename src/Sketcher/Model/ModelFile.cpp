#include "Model/ModelFile.h"

#include "Model/Overloaded.h"
#include "Model/ShapeKind.h"
#include "Model/Sketch.h"

#include "Foundation/FileRewriting.h"
#include "Foundation/Text.h"

#include <nlohmann/json.hpp>

#include <cstddef>
#include <string>

using Json = nlohmann::ordered_json;

namespace
{

Json ToJson(const vesk::Vector3d& point)
{
    return {point.x(), point.y(), point.z()};
}

Json NumbersOf(const Shape& shape)
{
    return std::visit(Overloaded{
                          [](const LineShape& line) {
                              return Json{{"type", "line"},
                                          {"start", ToJson(line.start)},
                                          {"end", ToJson(line.end)}};
                          },
                          [](const CircleShape& circle) {
                              return Json{{"type", "circle"},
                                          {"centre", ToJson(circle.centre)},
                                          {"radius", circle.radius},
                                          {"normal", ToJson(circle.normal)}};
                          },
                          [](const ArcShape& arc) {
                              return Json{{"type", "arc"},          {"centre", ToJson(arc.centre)},
                                          {"radius", arc.radius},   {"start", ToJson(arc.start)},
                                          {"end", ToJson(arc.end)}, {"normal", ToJson(arc.normal)}};
                          },
                          [](const RectangleShape& rectangle) {
                              Json corners = Json::array();
                              for (const vesk::Vector3d& corner : rectangle.corners)
                                  corners.push_back(ToJson(corner));
                              return Json{{"corners", corners}};
                          },
                      },
                      shape);
}

Json ToJson(const Entity& entity)
{
    Json json = {{"type", vesk::ToUtf8(KindOf(entity.shape).name)}};
    json.update(NumbersOf(entity.shape));
    json["style"] = vesk::ToUtf8(LineStyles()[static_cast<std::size_t>(entity.pen.style)].name);
    json["colour"] = vesk::ToUtf8(LineColours()[static_cast<std::size_t>(entity.pen.colour)].name);
    return json;
}

}

bool WriteModelFile(const Sketch& sketch, const QString& path)
{
    Json entities = Json::array();
    for (const Entity& entity : sketch.GetEntities())
        entities.push_back(ToJson(entity));
    const std::string text = Json{{"entities", entities}}.dump() + "\n";

    return vesk::RewriteFile(path.toStdString(), text);
}
