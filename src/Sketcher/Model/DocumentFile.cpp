#include "Model/DocumentFile.h"

#include "Model/Digest.h"
#include "Model/DocumentReader.h"
#include "Model/EntityJson.h"
#include "Model/JsonPieces.h"

#include "Foundation/JsonText.h"
#include "Foundation/LocaleFreeNumbers.h"

#include <algorithm>

using vesk::JsonText;

namespace
{

/// Ends an object, after the members of another one, which may be empty.
void Close(std::string& text, const std::string& others)
{
    if (others.empty())
        text += '}';
    else
        text.append(",").append(others, 1);
}

const std::string& UnknownOf(const std::map<int, std::string>& unknown, int id)
{
    static const std::string s_none;
    const auto found = unknown.find(id);
    return found != unknown.end() ? found->second : s_none;
}

void AppendLine(std::string& text, const Entity& entity, const UnknownFields& unknown)
{
    text += "{\"id\":";
    JsonText::AppendNumber(text, entity.id);
    text += ',';
    AppendFields(text, entity);
    Close(text, UnknownOf(unknown.entities, entity.id));
}

void AppendLayers(std::string& text, const SketchContent& content)
{
    char separator = '[';
    for (const Layer& layer : content.layers)
    {
        text += separator;
        text += "\n{";
        AppendFields(text, layer);
        Close(text, UnknownOf(content.unknown.layers, layer.id));
        separator = ',';
    }
    text += "\n]";
}

/// Everything but the entities and the end.
std::string HeadOf(const SketchContent& content, const std::string& digest)
{
    std::string text = "{\"format\":\"vesk-drawing\",\"version\":";
    JsonText::AppendNumber(text, DocumentFile::Version);
    text += ",\"digest\":";
    JsonText::AppendString(text, std::string_view(digest));
    text += ",\"name\":";
    JsonText::AppendString(text, content.name);
    text += ",\"lastId\":";
    JsonText::AppendNumber(text, content.lastId);
    text += ",\"lastLayerId\":";
    JsonText::AppendNumber(text, content.lastLayerId);
    text += ",\n\"layers\":";
    AppendLayers(text, content);
    text += ",\n\"pen\":{";
    AppendFields(text, content.currentPen);
    Close(text, content.unknown.currentPen);
    return text;
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
    return ToText(content, DigestOf(content).ToText(), progress);
}

std::string DocumentFile::ToText(const SketchContent& content, const std::string& digest,
                                 const Progress& progress)
{
    std::string text = HeadOf(content, digest) + ",\n\"entities\":[";
    const std::size_t count = content.entities.size();
    for (std::size_t i = 0; i < count; ++i)
    {
        if (progress != nullptr && !progress(i, count))
            return {};
        text += i == 0 ? "\n" : ",\n";
        AppendLine(text, content.entities[i], content.unknown);
    }
    text += "\n]";
    Close(text, content.unknown.document);
    text += '\n';
    return text;
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
