#include "Journal/LocaleFreeJson.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <optional>
#include <set>
#include <string_view>
#include <system_error>
#include <vector>

namespace vesk
{

namespace
{

using Json = nlohmann::ordered_json;

/// What stands before each string while real numbers are kept out of the library's reach in
/// strings.
constexpr char s_textTag = 't';
constexpr char s_realTag = 'r';

constexpr std::string_view s_digits = "0123456789";

/// The end of the string that begins at `begin`, behind its closing quote.
std::size_t FindStringEnd(std::string_view text, std::size_t begin)
{
    for (std::size_t i = begin + 1; i < text.size(); ++i)
    {
        if (text[i] == '\\')
            ++i;
        else if (text[i] == '"')
            return i + 1;
    }
    return text.size();
}

std::size_t FindNumberEnd(std::string_view text, std::size_t begin)
{
    return std::min(text.find_first_not_of("0123456789+-.eE", begin), text.size());
}

/// Moves `index` over digits; false when there are none.
bool SkipDigits(std::string_view number, std::size_t& index)
{
    const std::size_t begin = index;
    index = std::min(number.find_first_not_of(s_digits, begin), number.size());
    return index > begin;
}

/// True when a number is written as JSON has it.
bool IsNumber(std::string_view number)
{
    std::size_t index = number.front() == '-' ? 1 : 0;
    const std::size_t firstDigit = index;
    if (!SkipDigits(number, index) || (number[firstDigit] == '0' && index > firstDigit + 1))
        return false;
    if (index < number.size() && number[index] == '.' && !SkipDigits(number, ++index))
        return false;
    if (index == number.size())
        return true;
    if (number[index] != 'e' && number[index] != 'E')
        return false;
    ++index;
    if (index < number.size() && (number[index] == '+' || number[index] == '-'))
        ++index;
    return SkipDigits(number, index) && index == number.size();
}

/// Moves `index` over one token of a JSON text and adds it to `tagged`. False for a bad number.
bool TagToken(std::string_view text, std::size_t& index, std::string& tagged)
{
    const std::size_t begin = index;
    if (text[begin] == '"')
    {
        index = FindStringEnd(text, begin);
        tagged += '"';
        tagged += s_textTag;
        tagged += text.substr(begin + 1, index - begin - 1);
        return true;
    }
    if (text[begin] != '-' && s_digits.find(text[begin]) == s_digits.npos)
    {
        tagged += text[index++];
        return true;
    }
    index = FindNumberEnd(text, begin);
    const std::string_view number = text.substr(begin, index - begin);
    if (number.find_first_of(".eE") == number.npos)
        tagged += number;
    else
        ((tagged += '"') += s_realTag).append(number) += '"';
    return IsNumber(number);
}

/// The text with each real number in a string, and a tag before the content of every string. False
/// for a bad number.
bool Tag(std::string_view text, std::string& tagged)
{
    for (std::size_t index = 0; index < text.size();)
    {
        if (!TagToken(text, index, tagged))
            return false;
    }
    return true;
}

bool Untag(Json& value);

bool UntagString(Json& value)
{
    const std::string tagged = value.get<std::string>();
    if (tagged.front() == s_textTag)
    {
        value = tagged.substr(1);
        return true;
    }
    double real = 0.0;
    const char* const pEnd = tagged.data() + tagged.size();
    const std::from_chars_result result = std::from_chars(tagged.data() + 1, pEnd, real);
    value = real;
    return result.ec == std::errc() && result.ptr == pEnd;
}

/// False when a key is a real number.
bool UntagObject(Json& value)
{
    Json untagged = Json::object();
    for (const auto& member : value.items())
    {
        if (member.key().front() != s_textTag || !Untag(member.value()))
            return false;
        untagged[member.key().substr(1)] = member.value();
    }
    value = std::move(untagged);
    return true;
}

bool Untag(Json& value)
{
    if (value.is_string())
        return UntagString(value);
    if (value.is_object())
        return UntagObject(value);
    if (!value.is_array())
        return true;
    for (Json& element : value)
    {
        if (!Untag(element))
            return false;
    }
    return true;
}

/// False when lists and objects of a text stand in one another more deeply than may be read: what
/// reads them calls itself for each.
bool IsFlatEnough(std::string_view text)
{
    constexpr int GreatestDepth = 32;
    int depth = 0;
    for (std::size_t index = 0; index < text.size(); ++index)
    {
        if (text[index] == '"')
            index = FindStringEnd(text, index) - 1;
        else if (text[index] == '[' || text[index] == '{')
            ++depth;
        else if (text[index] == ']' || text[index] == '}')
            --depth;
        if (depth > GreatestDepth)
            return false;
    }
    return true;
}

/// Watches a text being parsed for keys that stand twice in one object.
class DoubleKeys
{
public:
    bool On(Json::parse_event_t event, const Json& parsed)
    {
        if (event == Json::parse_event_t::object_start)
            m_open.emplace_back();
        else if (event == Json::parse_event_t::object_end)
            m_open.pop_back();
        else if (event == Json::parse_event_t::key)
            Note(parsed.get<std::string>().substr(1));
        return true;
    }

    /// The first such key.
    const std::optional<std::string>& Get() const { return m_found; }

private:
    void Note(const std::string& key)
    {
        if (!m_open.back().insert(key).second && !m_found.has_value())
            m_found = key;
    }

    std::vector<std::set<std::string>> m_open;
    std::optional<std::string> m_found;
};

}

bool ParseJson(const std::string& text, Json& value, std::string& error)
{
    error = "this is no JSON";
    std::string tagged;
    if (!Tag(text, tagged))
        return false;
    if (!IsFlatEnough(tagged))
    {
        error = "this is nested too deeply";
        return false;
    }
    DoubleKeys keys;
    const auto watch = [&keys](int, Json::parse_event_t event, Json& parsed) {
        return keys.On(event, parsed);
    };
    value = Json::parse(tagged, watch, false);
    if (value.is_discarded() || !Untag(value))
        return false;
    if (keys.Get().has_value())
        error = "the key \"" + *keys.Get() + "\" stands twice";
    return !keys.Get().has_value();
}

}
