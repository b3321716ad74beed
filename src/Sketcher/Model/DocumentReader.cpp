#include "Model/DocumentReader.h"

#include "Model/Digest.h"
#include "Model/DocumentFields.h"
#include "Model/ShapeFields.h"
#include "Model/ShapeKind.h"

#include "Foundation/Text.h"

#include <limits>
#include <optional>
#include <utility>

namespace
{

/// A shape of the kind with that name; nothing if there is none.
std::optional<Shape> MakeShape(const std::wstring& kind)
{
    static const Shape s_shapes[] = {LineShape(), CircleShape(), ArcShape(), RectangleShape()};
    static_assert(std::size(s_shapes) == std::variant_size_v<Shape>);
    for (const Shape& shape : s_shapes)
    {
        if (KindOf(shape).name == kind)
            return shape;
    }
    return std::nullopt;
}

Shape TakeShape(DocumentFields& fields, const JsonPiece& owner)
{
    std::optional<Shape> shape = MakeShape(vesk::FromUtf8(fields.TakeText("type")));
    if (!shape.has_value())
        throw JsonFault(owner.offset, "\"type\" is not a value that this program knows");
    const auto take = [&fields](const char* name, auto& numbers) { fields.Take(name, numbers); };
    std::visit([&take](auto& kind) { VisitFields(kind, take); }, *shape);
    if (!IsDrawable(*shape))
        throw JsonFault(owner.offset, "the shape cannot be drawn");
    return *shape;
}

void Keep(const std::string& fields, std::map<int, std::string>& unknown, int id)
{
    if (!fields.empty())
        unknown.emplace_hint(unknown.end(), id, fields);
}

}

DocumentReading DocumentReader::Read(std::string_view text)
{
    const JsonPiece whole{text, 0};
    // The parser takes it for the end of a text.
    if (const std::size_t zero = text.find('\0'); zero != std::string_view::npos)
        throw JsonFault(zero, "not valid JSON");
    DocumentFields fields(whole);
    if (fields.TakeText("format") != "vesk-drawing")
        throw JsonFault(0, "not a drawing");
    if (fields.TakeInteger("version", 1, std::numeric_limits<int>::max()) > DocumentFile::Version)
    {
        DocumentReading newer;
        newer.outcome = DocumentReading::Outcome::Newer;
        newer.error = "written by a newer version of the program";
        return newer;
    }
    return ReadContent(fields);
}

DocumentReading DocumentReader::ReadContent(DocumentFields& fields)
{
    const JsonPiece digest = fields.Take("digest");
    m_content.name = vesk::FromUtf8(fields.TakeText("name"));
    m_content.lastId = fields.TakeInteger("lastId", 0, SketchContent::GreatestId);
    m_content.lastLayerId = fields.TakeInteger("lastLayerId", 0, SketchContent::GreatestId);
    ReadLayers(fields.Take("layers"));
    ReadCurrentPen(fields.Take("pen"));
    DocumentReading reading;
    if (!ReadEntities(fields.Take("entities")))
    {
        reading.outcome = DocumentReading::Outcome::Cancelled;
        return reading;
    }
    m_content.unknown.document = fields.GetRest();
    CheckDigest(digest, reading);
    reading.outcome = DocumentReading::Outcome::Whole;
    reading.content = std::move(m_content);
    return reading;
}

void DocumentReader::ReadLayers(const JsonPiece& layers)
{
    m_content.layers.clear();
    for (const JsonPiece& piece : SplitArray(layers))
        ReadLayer(piece);
    if (m_content.layers.empty())
        throw JsonFault(layers.offset, "there is no layer");
}

void DocumentReader::ReadLayer(const JsonPiece& piece)
{
    DocumentFields fields(piece);
    const bool isFirst = m_content.layers.empty();
    const int least = isFirst ? Layer::BaseId : m_content.layers.back().id + 1;
    Layer layer;
    layer.id = fields.TakeInteger("id", least, isFirst ? Layer::BaseId : m_content.lastLayerId);
    layer.name = vesk::FromUtf8(fields.TakeText("name"));
    layer.colour = fields.TakeValue(ColourPart());
    layer.isVisible = fields.TakeTruth("visible");
    layer.isLocked = fields.TakeTruth("locked");
    if (layer.name.empty() || !m_layerNames.insert(layer.name).second)
        throw JsonFault(piece.offset, "a layer without a name of its own");
    Keep(fields.GetRest(), m_content.unknown.layers, layer.id);
    m_content.layers.push_back(std::move(layer));
}

void DocumentReader::ReadCurrentPen(const JsonPiece& piece)
{
    DocumentFields fields(piece);
    fields.TakePen(m_content.currentPen);
    m_content.currentPen.layer = TakeLayer(fields, piece);
    m_content.unknown.currentPen = fields.GetRest();
}

/// Returns false if cancelled.
bool DocumentReader::ReadEntities(const JsonPiece& entities)
{
    const std::vector<JsonPiece> pieces = SplitArray(entities);
    m_content.entities.reserve(pieces.size());
    for (const JsonPiece& piece : pieces)
    {
        if (m_progress != nullptr && !m_progress(m_content.entities.size(), pieces.size()))
            return false;
        ReadEntity(piece);
    }
    return true;
}

void DocumentReader::ReadEntity(const JsonPiece& piece)
{
    DocumentFields fields(piece);
    const int last = m_content.entities.empty() ? 0 : m_content.entities.back().id;
    Entity entity;
    entity.id = fields.TakeInteger("id", last + 1, m_content.lastId);
    entity.shape = TakeShape(fields, piece);
    fields.TakePen(entity.pen);
    entity.pen.layer = TakeLayer(fields, piece);
    Keep(fields.GetRest(), m_content.unknown.entities, entity.id);
    m_content.entities.push_back(std::move(entity));
}

int DocumentReader::TakeLayer(DocumentFields& fields, const JsonPiece& owner) const
{
    const int id = fields.TakeInteger("layer", 0, m_content.lastLayerId);
    if (FindById(m_content.layers, id) == nullptr)
        throw JsonFault(owner.offset, "there is no layer " + std::to_string(id));
    return id;
}

void DocumentReader::CheckDigest(const JsonPiece& piece, DocumentReading& reading) const
{
    reading.sum = DigestOf(m_content);
    reading.digest = reading.sum.ToText();
    if (piece.text != '"' + reading.digest + '"')
        throw JsonFault(piece.offset, "the digest is not that of the drawing");
}
