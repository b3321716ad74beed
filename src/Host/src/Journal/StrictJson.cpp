#include "Journal/StrictJson.h"

#include "Platform/PlainNumbers.h"

#include <set>
#include <vector>

namespace vesk
{

namespace
{

using Json = nlohmann::ordered_json;

/// Watches a text being parsed for what the parser lets pass.
class Strictness
{
public:
    void On(int depth, Json::parse_event_t event, const Json& parsed)
    {
        constexpr int GreatestDepth = 32;
        if (depth >= GreatestDepth && m_error.empty())
            m_error = "this is nested too deeply";
        if (event == Json::parse_event_t::object_start)
            m_open.emplace_back();
        else if (event == Json::parse_event_t::object_end)
            m_open.pop_back();
        else if (event == Json::parse_event_t::key)
            NoteKey(parsed.get<std::string>());
    }

    /// What was found first; empty where there was nothing.
    const std::string& GetError() const { return m_error; }

private:
    void NoteKey(const std::string& key)
    {
        if (!m_open.back().insert(key).second && m_error.empty())
            m_error = "the key \"" + key + "\" stands twice";
    }

    /// The keys of the objects that are open.
    std::vector<std::set<std::string>> m_open;
    std::string m_error;
};

}

bool ParseJson(const std::string& text, Json& value, std::string& error)
{
    // The parser takes the decimal point of the locale for one byte, which it is not everywhere.
    const PlainNumbersScope plainNumbers;
    Strictness strictness;
    const auto watch = [&strictness](int depth, Json::parse_event_t event, const Json& parsed) {
        strictness.On(depth, event, parsed);
        return true;
    };
    value = Json::parse(text, watch, false);
    error = strictness.GetError();
    if (error.empty() && value.is_discarded())
        error = "this is no JSON";
    return error.empty();
}

}
