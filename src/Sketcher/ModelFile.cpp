#include "ModelFile.h"

#include "Sketch.h"

#include "Foundation/Text.h"

#include <nlohmann/json.hpp>

#include <QSaveFile>

#include <cstddef>
#include <string>

using Json = nlohmann::ordered_json;

namespace
{

Json ToJson(const vesk::Vector3d& point)
{
    return {point.x(), point.y(), point.z()};
}

}

bool WriteModelFile(const Sketch& sketch, const QString& path)
{
    Json entities = Json::array();
    for (const Entity& entity : sketch.GetEntities())
        entities.push_back(
            {{"type", "line"},
             {"start", ToJson(entity.start)},
             {"end", ToJson(entity.end)},
             {"style", vesk::ToUtf8(LineStyles()[static_cast<std::size_t>(entity.pen.style)].name)},
             {"colour",
              vesk::ToUtf8(LineColours()[static_cast<std::size_t>(entity.pen.colour)].name)}});
    const std::string text = Json{{"entities", entities}}.dump() + "\n";

    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) &&
           file.write(text.data(), static_cast<qint64>(text.size())) ==
               static_cast<qint64>(text.size()) &&
           file.commit();
}
