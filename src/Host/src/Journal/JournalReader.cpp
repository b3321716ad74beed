#include "Journal/JournalReader.h"

#include "Dimension/InputField.h"
#include "Foundation/Text.h"
#include "Journal/StrictJson.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <limits>
#include <utility>

namespace vesk
{

namespace
{

using Json = nlohmann::ordered_json;

bool ToInteger(const Json& json, int& integer)
{
    if (!json.is_number_integer())
        return false;
    const bool isTooGreat =
        json.is_number_unsigned() && json.get<std::uint64_t>() > std::numeric_limits<int>::max();
    const auto value = json.get<std::int64_t>();
    if (isTooGreat || value < std::numeric_limits<int>::min() ||
        value > std::numeric_limits<int>::max())
        return false;
    integer = static_cast<int>(value);
    return true;
}

/// Null reads as NaN.
bool ToReal(const Json& json, double& real)
{
    if (!json.is_number() && !json.is_null())
        return false;
    real = json.is_null() ? std::numeric_limits<double>::quiet_NaN() : json.get<double>();
    return true;
}

/// Adds a parameter; false if the value has a type that no parameter can have.
bool AddParameter(CommandParameters& parameters, const std::wstring& name, const Json& json)
{
    int integer = 0;
    double real = 0.0;
    if (json.is_boolean())
        parameters.Add(name, CommandParameterValue(json.get<bool>()));
    else if (json.is_string())
        parameters.Add(name, CommandParameterValue(FromUtf8(json.get<std::string>())));
    else if (ToInteger(json, integer))
        parameters.Add(name, CommandParameterValue(integer));
    else if (!json.is_number_integer() && ToReal(json, real))
        parameters.Add(name, CommandParameterValue(real));
    else
        return false;
    return true;
}

std::string Quote(const std::string& text)
{
    return '"' + text + '"';
}

}

bool JournalReader::Read()
{
    if (!ParseJson(m_text, m_line, m_error))
        return false;
    if (!m_line.is_object())
        return Fail("not a JSON object");
    if (!TakeInteger("n", m_record.number))
        return false;
    if (!ReadKind() || !CheckNumber())
        return false;
    if (!m_line.empty())
        return Fail("unexpected key " + Quote(m_line.begin().key()));
    return true;
}

bool JournalReader::CheckNumber()
{
    if (std::holds_alternative<HeaderRecord>(m_record.what))
        return m_record.number == 0 || Fail("\"n\" of a header is not 0");
    return m_record.number >= 1 || Fail("\"n\" is below 1");
}

bool JournalReader::ReadKind()
{
    struct Kind
    {
        const char* name;
        bool (JournalReader::*read)();
    };
    static constexpr Kind Kinds[] = {
        {"command", &JournalReader::ReadCommand}, {"point", &JournalReader::ReadPoint},
        {"value", &JournalReader::ReadValue},     {"selection", &JournalReader::ReadSelection},
        {"undo", &JournalReader::ReadUndo},       {"property", &JournalReader::ReadProperty},
        {"redo", &JournalReader::ReadRedo},       {"mark", &JournalReader::ReadMark},
        {"close", &JournalReader::ReadClose},     {"journal", &JournalReader::ReadHeader},
        {"end", &JournalReader::ReadEnd},
    };
    std::string name;
    if (!TakeText("kind", name))
        return false;
    const auto* pKind = std::find_if(std::begin(Kinds), std::end(Kinds),
                                     [&name](const Kind& kind) { return kind.name == name; });
    if (pKind == std::end(Kinds))
        return Fail("unknown kind " + Quote(name));
    return (this->*pKind->read)();
}

bool JournalReader::ReadCommand()
{
    CommandRecord record;
    if (!TakeText("id", record.commandId))
        return false;
    if (Has("parameters") && !TakeParameters("parameters", record.parameters))
        return false;
    m_record.what = std::move(record);
    return true;
}

bool JournalReader::ReadPoint()
{
    PointRecord record;
    if (!TakePoint("point", record.point))
        return false;
    if (Has("entity") && !TakeInteger("entity", record.entity.emplace()))
        return false;
    m_record.what = std::move(record);
    return true;
}

bool JournalReader::ReadValue()
{
    ValueRecord record;
    if (!TakeField("field", record.field) || !TakeText("text", record.text) ||
        !TakeReal("value", record.value))
        return false;
    m_record.what = std::move(record);
    return true;
}

bool JournalReader::ReadSelection()
{
    SelectionRecord record;
    if (!TakeIntegers("entities", record.entities))
        return false;
    m_record.what = std::move(record);
    return true;
}

bool JournalReader::ReadProperty()
{
    PropertyRecord record;
    if (!TakeText("object", record.object) || !TakeText("property", record.property) ||
        !TakeText("value", record.value))
        return false;
    m_record.what = std::move(record);
    return true;
}

bool JournalReader::ReadUndo()
{
    UndoRecord record;
    if (!TakeInteger("entity", record.entity))
        return false;
    m_record.what = std::move(record);
    return true;
}

bool JournalReader::ReadRedo()
{
    RedoRecord record;
    if (!TakeInteger("entity", record.entity))
        return false;
    m_record.what = std::move(record);
    return true;
}

bool JournalReader::ReadMark()
{
    MarkRecord record;
    if (!TakeText("digest", record.digest))
        return false;
    if (Has("t") && !TakeInteger("t", record.time.emplace()))
        return false;
    m_record.what = std::move(record);
    return true;
}

bool JournalReader::ReadClose()
{
    m_record.what = CloseRecord();
    return true;
}

/// The version is checked first: a newer one may have other fields.
bool JournalReader::ReadHeader()
{
    constexpr int Current = HeaderRecord::CurrentVersion;
    HeaderRecord record;
    if (!TakeInteger("version", record.version))
        return false;
    if (record.version > Current)
        return Fail("the journal has version " + std::to_string(record.version) +
                    ", this program reads up to version " + std::to_string(Current));
    if (record.version < Current)
        return Fail("no header has version " + std::to_string(record.version));
    if (!TakeText("program", record.program) || !TakeText("time", record.time))
        return false;
    m_record.what = std::move(record);
    return true;
}

bool JournalReader::ReadEnd()
{
    std::string result;
    if (!TakeText("result", result))
        return false;
    if (result != "done" && result != "refused")
        return Fail("unknown result " + Quote(result));
    m_record.what = EndRecord{m_record.number, result == "refused"};
    return true;
}

bool JournalReader::TakeText(const char* key, std::string& text)
{
    const Json* pJson = Take(key);
    if (pJson == nullptr)
        return false;
    if (!pJson->is_string())
        return Fail(Quote(key) + " is not a string");
    text = pJson->get<std::string>();
    return true;
}

bool JournalReader::TakeText(const char* key, std::wstring& text)
{
    std::string utf8;
    if (!TakeText(key, utf8))
        return false;
    text = FromUtf8(utf8);
    return true;
}

bool JournalReader::TakeInteger(const char* key, int& integer)
{
    const Json* pJson = Take(key);
    if (pJson == nullptr)
        return false;
    return ToInteger(*pJson, integer) || Fail(Quote(key) + " is not an integer");
}

bool JournalReader::TakeIntegers(const char* key, std::vector<int>& integers)
{
    const Json* pJson = Take(key);
    if (pJson == nullptr)
        return false;
    const bool isList =
        pJson->is_array() && std::all_of(pJson->begin(), pJson->end(), [&](const Json& json) {
            return ToInteger(json, integers.emplace_back());
        });
    return isList || Fail(Quote(key) + " is not a list of integers");
}

bool JournalReader::TakeReal(const char* key, double& real)
{
    const Json* pJson = Take(key);
    if (pJson == nullptr)
        return false;
    return ToReal(*pJson, real) || Fail(Quote(key) + " is not a number");
}

bool JournalReader::TakePoint(const char* key, Vector3d& point)
{
    const Json* pJson = Take(key);
    if (pJson == nullptr)
        return false;
    const bool isPoint = pJson->is_array() && pJson->size() == 3 &&
                         ToReal((*pJson)[0], point.x()) && ToReal((*pJson)[1], point.y()) &&
                         ToReal((*pJson)[2], point.z());
    return isPoint || Fail(Quote(key) + " is not a list of three numbers");
}

bool JournalReader::TakeField(const char* key, InputState& field)
{
    std::string name;
    if (!TakeText(key, name))
        return false;
    const std::optional<InputState> found = FindByJournalName(name);
    if (!found.has_value())
        return Fail("unknown field " + Quote(name));
    field = *found;
    return true;
}

bool JournalReader::TakeParameters(const char* key, CommandParameters& parameters)
{
    const Json* pJson = Take(key);
    if (pJson == nullptr)
        return false;
    if (!pJson->is_object())
        return Fail(Quote(key) + " is not a JSON object");
    for (const auto& member : pJson->items())
    {
        if (!AddParameter(parameters, FromUtf8(member.key()), member.value()))
            return Fail("the parameter " + Quote(member.key()) + " has an invalid value");
    }
    return true;
}

const JournalReader::Json* JournalReader::Take(const char* key)
{
    const auto found = m_line.find(key);
    if (found == m_line.end())
    {
        Fail(Quote(key) + " is missing");
        return nullptr;
    }
    m_taken = std::move(*found);
    m_line.erase(found);
    return &m_taken;
}

bool JournalReader::Fail(const std::string& error)
{
    m_error = error;
    return false;
}

}
