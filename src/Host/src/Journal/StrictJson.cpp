#include "Journal/StrictJson.h"

#include "Platform/PlainNumbers.h"

#include <set>
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
    void On(int depth, Json::parse_event_t event, const Json& parsed)
    {
        constexpr int GreatestDepth = 32;
        if (depth >= GreatestDepth && m_error.empty())
            m_error = "nested too deeply";
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

}

bool ParseJson(const std::string& text, Json& value, std::string& error)
{
    // The parser assumes that the locale's decimal point is one byte, which is not true of every
    // locale.
    const PlainNumbersScope plainNumbers;
    Strictness strictness;
    const auto watch = [&strictness](int depth, Json::parse_event_t event, const Json& parsed) {
        strictness.On(depth, event, parsed);
        return true;
    };
    value = Json::parse(text, watch, false);
    error = strictness.GetError();
    if (error.empty() && value.is_discarded())
        error = "not valid JSON";
    return error.empty();
}

}
