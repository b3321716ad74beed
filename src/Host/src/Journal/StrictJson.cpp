#include "Journal/StrictJson.h"

#include "Platform/PlainNumbers.h"

#include <algorithm>
#include <set>
#include <utility>
#include <vector>

namespace vesk
{

namespace
{

using Json = nlohmann::ordered_json;

/// Watches the parsing of a text for errors that the parser accepts.
class Strictness
{
public:
    void On(Json::parse_event_t event, const Json& parsed)
    {
        if (event == Json::parse_event_t::object_start)
            m_open.emplace_back();
        else if (event == Json::parse_event_t::object_end)
            m_open.pop_back();
        else if (event == Json::parse_event_t::key)
            NoteKey(parsed.get<std::string>());
    }

    /// The first error found; empty if there was none.
    const std::string& GetError() const { return m_error; }

private:
    void NoteKey(const std::string& key)
    {
        if (!m_open.back().insert(key).second && m_error.empty())
            m_error = "duplicate key \"" + key + "\"";
    }

    /// The keys of the objects being parsed.
    std::vector<std::set<std::string>> m_open;
    std::string m_error;
};

/// Counts the brackets before anything is parsed: the parser needs memory for each level.
class Nesting
{
public:
    explicit Nesting(const std::string& text)
    {
        for (const char character : text)
            Add(character);
    }

    bool IsTooDeep() const
    {
        constexpr int GreatestDepth = 32;
        return m_deepest > GreatestDepth;
    }

private:
    void Add(char character)
    {
        if (m_isInText)
            AddInText(character);
        else if (character == '[' || character == '{')
            m_deepest = std::max(m_deepest, ++m_depth);
        else if (character == ']' || character == '}')
            --m_depth;
        else
            m_isInText = character == '"';
    }

    void AddInText(char character)
    {
        const bool isEscaped = std::exchange(m_isEscaped, false);
        m_isEscaped = character == '\\' && !isEscaped;
        m_isInText = character != '"' || isEscaped;
    }

    int m_depth = 0;
    int m_deepest = 0;
    bool m_isInText = false;
    bool m_isEscaped = false;
};

}

bool ParseJson(const std::string& text, Json& value, std::string& error)
{
    if (Nesting(text).IsTooDeep())
    {
        error = "nested too deeply";
        return false;
    }
    // The parser assumes that the locale's decimal point is one byte, which is not true of every
    // locale.
    const PlainNumbersScope plainNumbers;
    Strictness strictness;
    const auto watch = [&strictness](int, Json::parse_event_t event, const Json& parsed) {
        strictness.On(event, parsed);
        return true;
    };
    value = Json::parse(text, watch, false);
    error = strictness.GetError();
    if (error.empty() && value.is_discarded())
        error = "not valid JSON";
    return error.empty();
}

}
