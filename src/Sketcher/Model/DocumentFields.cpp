#include "Model/DocumentFields.h"

#include "Foundation/Text.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstddef>
#include <optional>

using Json = nlohmann::ordered_json;

namespace
{

/// The value of a piece; discarded if that is not JSON.
Json ValueOf(const JsonPiece& piece)
{
    return Json::parse(piece.text.begin(), piece.text.end(), nullptr, false);
}

[[noreturn]] void Refuse(const std::string& key, const JsonPiece& piece, const std::string& reason)
{
    throw JsonFault(piece.offset, '"' + key + "\" is " + reason);
}

bool IsPoint(const Json& value)
{
    return value.is_array() && value.size() == 3 &&
           std::all_of(value.begin(), value.end(),
                       [](const Json& number) { return number.is_number(); });
}

vesk::Vector3d PointOf(const Json& value)
{
    return {value[0].get<double>(), value[1].get<double>(), value[2].get<double>()};
}

}

DocumentFields::DocumentFields(const JsonPiece& object) : m_object(object)
{
    for (JsonMember& member : SplitObject(object))
        m_fields.push_back({std::move(member), false});
}

JsonPiece DocumentFields::Take(const std::string& key)
{
    const auto found = std::find_if(m_fields.begin(), m_fields.end(),
                                    [&key](const Field& field) { return field.member.key == key; });
    if (found == m_fields.end())
        Refuse(key, m_object, "missing");
    found->isTaken = true;
    return found->member.value;
}

std::string DocumentFields::TakeText(const std::string& key)
{
    const JsonPiece piece = Take(key);
    const Json value = ValueOf(piece);
    if (!value.is_string())
        Refuse(key, piece, "not a text");
    return value.get<std::string>();
}

bool DocumentFields::TakeTruth(const std::string& key)
{
    const JsonPiece piece = Take(key);
    if (piece.text != "true" && piece.text != "false")
        Refuse(key, piece, "neither true nor false");
    return piece.text == "true";
}

int DocumentFields::TakeInteger(const std::string& key, int least, int greatest)
{
    const JsonPiece piece = Take(key);
    const Json value = ValueOf(piece);
    if (!value.is_number_integer())
        Refuse(key, piece, "not an integer");
    const double number = value.get<double>();
    if (number < least || number > greatest)
        Refuse(key, piece,
               "not between " + std::to_string(least) + " and " + std::to_string(greatest));
    return value.get<int>();
}

int DocumentFields::TakeValue(const PenPart& part)
{
    const std::string key = vesk::ToUtf8(part.name);
    const JsonPiece piece = Take(key);
    const Json value = ValueOf(piece);
    std::optional<int> index;
    if (value.is_string())
        index = part.Find(vesk::FromUtf8(value.get<std::string>()));
    if (!index.has_value())
        Refuse(key, piece, "not a value that this program knows");
    return *index;
}

void DocumentFields::TakePen(Pen& pen)
{
    for (const PenPart& part : PenParts())
        pen.*part.member = TakeValue(part);
}

void DocumentFields::Take(const std::string& key, double& number)
{
    const JsonPiece piece = Take(key);
    const Json value = ValueOf(piece);
    if (!value.is_number())
        Refuse(key, piece, "not a number");
    number = value.get<double>();
}

void DocumentFields::Take(const std::string& key, vesk::Vector3d& point)
{
    const JsonPiece piece = Take(key);
    const Json value = ValueOf(piece);
    if (!IsPoint(value))
        Refuse(key, piece, "not a point");
    point = PointOf(value);
}

void DocumentFields::Take(const std::string& key, std::array<vesk::Vector3d, 4>& points)
{
    const JsonPiece piece = Take(key);
    const Json value = ValueOf(piece);
    if (!value.is_array() || value.size() != points.size() ||
        !std::all_of(value.begin(), value.end(), &IsPoint))
        Refuse(key, piece, "not a list of four points");
    std::transform(value.begin(), value.end(), points.begin(), &PointOf);
}

std::string DocumentFields::GetRest() const
{
    std::string rest;
    for (const Field& field : m_fields)
    {
        if (field.isTaken)
            continue;
        const JsonMember& member = field.member;
        if (!Json::accept(member.value.text.begin(), member.value.text.end()))
            Refuse(member.key, member.value, "not valid JSON");
        rest += rest.empty() ? "{" : ",";
        rest += Json(member.key).dump() + ':' + WithoutBlanks(member.value.text);
    }
    return rest.empty() ? rest : rest + '}';
}
