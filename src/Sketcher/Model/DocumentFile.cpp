#include "Model/DocumentFile.h"

#include "Model/Digest.h"
#include "Model/DocumentReader.h"
#include "Model/EntityJson.h"
#include "Model/JsonPieces.h"

#include "Foundation/LocaleFreeNumbers.h"
#include "Foundation/Text.h"

#include <algorithm>

namespace
{

/// An object with the members of another, which may be empty, after its own.
std::string Join(std::string object, const std::string& others)
{
    if (others.empty())
        return object;
    object.back() = ',';
    return object.append(others, 1);
}

std::string UnknownOf(const std::map<int, std::string>& unknown, int id)
{
    const auto found = unknown.find(id);
    return found != unknown.end() ? found->second : std::string();
}

std::string ToLine(const Entity& entity, const UnknownFields& unknown)
{
    const std::string id = "{\"id\":" + std::to_string(entity.id) + '}';
    return Join(Join(id, ToJson(entity).dump()), UnknownOf(unknown.entities, entity.id));
}

std::string LayersOf(const SketchContent& content)
{
    std::string text;
    for (const Layer& layer : content.layers)
    {
        text += text.empty() ? "[\n" : ",\n";
        text += Join(ToJson(layer).dump(), UnknownOf(content.unknown.layers, layer.id));
    }
    return text + "\n]";
}

/// Everything but the entities and the end.
std::string HeadOf(const SketchContent& content)
{
    const auto quoted = [](const std::string& text) { return nlohmann::json(text).dump(); };
    std::string text = "{\"format\":\"vesk-drawing\",\"version\":";
    text += std::to_string(DocumentFile::Version);
    text += ",\"digest\":" + quoted(DigestOf(content).ToText());
    text += ",\"name\":" + quoted(vesk::ToUtf8(content.name));
    text += ",\"lastId\":" + std::to_string(content.lastId);
    text += ",\"lastLayerId\":" + std::to_string(content.lastLayerId);
    text += ",\n\"layers\":" + LayersOf(content);
    return text +
           ",\n\"pen\":" + Join(ToJson(content.currentPen).dump(), content.unknown.currentPen);
}

DocumentReading Failed(DocumentReading::Outcome outcome, const std::string& error, int line)
{
    DocumentReading reading;
    reading.outcome = outcome;
    reading.error = error;
    reading.line = line;
    return reading;
}

int LineAt(std::string_view text, std::size_t offset)
{
    const std::string_view before = text.substr(0, offset);
    return 1 + static_cast<int>(std::count(before.begin(), before.end(), '\n'));
}

}

std::string DocumentFile::ToText(const SketchContent& content, const Progress& progress)
{
    std::string text = HeadOf(content) + ",\n\"entities\":[";
    const std::size_t count = content.entities.size();
    for (std::size_t i = 0; i < count; ++i)
    {
        if (progress != nullptr && !progress(i, count))
            return {};
        text += i == 0 ? "\n" : ",\n";
        text += ToLine(content.entities[i], content.unknown);
    }
    return Join(text + "\n]}", content.unknown.document) + '\n';
}

DocumentReading DocumentFile::FromText(std::string_view text, const Progress& progress)
{
    const vesk::LocaleFreeNumbers decimalPoint;
    try
    {
        return DocumentReader(progress).Read(text);
    }
    catch (const JsonFault& fault)
    {
        return Failed(DocumentReading::Outcome::Damaged, fault.what(),
                      LineAt(text, fault.GetOffset()));
    }
}
