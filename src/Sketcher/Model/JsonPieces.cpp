#include "Model/JsonPieces.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <utility>

namespace
{

bool IsBlank(char c)
{
    return c == ' ' || c == '\n' || c == '\r' || c == '\t';
}

/// Walks over a piece. What is inside brackets is only counted.
class Walk
{
public:
    explicit Walk(const JsonPiece& piece) : m_piece(piece) { SkipBlanks(); }

    bool IsAtEnd() const { return m_place >= m_piece.text.size(); }

    /// Skips the character if it is next.
    bool Skip(char c)
    {
        const bool isNext = !IsAtEnd() && m_piece.text[m_place] == c;
        if (isNext)
        {
            ++m_place;
            SkipBlanks();
        }
        return isNext;
    }

    void Expect(char c)
    {
        if (!Skip(c))
            Fail(std::string("expected '") + c + "'");
    }

    std::string TakeKey()
    {
        const std::size_t begin = m_place;
        if (IsAtEnd() || m_piece.text[m_place] != '"')
            Fail("expected a key");
        SkipText();
        const std::string_view token = m_piece.text.substr(begin, m_place - begin);
        const auto key = nlohmann::json::parse(token.begin(), token.end(), nullptr, false);
        if (!key.is_string())
            Fail("not valid JSON");
        SkipBlanks();
        return key.get<std::string>();
    }

    /// Everything up to the comma or bracket that ends the value.
    JsonPiece TakeValue()
    {
        constexpr int GreatestDepth = 32;
        const std::size_t begin = m_place;
        std::size_t end = m_place;
        for (int depth = 0; !IsEndOfValue(depth); end = m_place)
        {
            depth += SkipPart();
            // The brackets of the object or list that holds the value count, too.
            if (depth >= GreatestDepth)
                Fail("nested too deeply");
        }
        return {m_piece.text.substr(begin, end - begin), m_piece.offset + begin};
    }

    [[noreturn]] void Fail(const std::string& reason) const
    {
        throw JsonFault(m_piece.offset + m_place, reason);
    }

private:
    void SkipBlanks()
    {
        while (!IsAtEnd() && IsBlank(m_piece.text[m_place]))
            ++m_place;
    }

    bool IsEndOfValue(int depth)
    {
        SkipBlanks();
        if (IsAtEnd())
            return true;
        const char c = m_piece.text[m_place];
        return depth == 0 && (c == ',' || c == '}' || c == ']');
    }

    /// Skips a text or one other character; returns by how much the depth changes.
    int SkipPart()
    {
        switch (m_piece.text[m_place])
        {
        case '"':
            SkipText();
            return 0;
        case '[':
        case '{':
            ++m_place;
            return 1;
        case ']':
        case '}':
            ++m_place;
            return -1;
        default:
            ++m_place;
            return 0;
        }
    }

    /// To behind the closing quote.
    void SkipText()
    {
        for (++m_place; !IsAtEnd() && m_piece.text[m_place] != '"'; ++m_place)
            m_place += m_piece.text[m_place] == '\\' ? 1 : 0;
        if (m_place >= m_piece.text.size())
        {
            m_place = m_piece.text.size();
            Fail("a text without an end");
        }
        ++m_place;
    }

    JsonPiece m_piece;
    std::size_t m_place = 0;
};

void RefuseDuplicates(const std::vector<JsonMember>& members)
{
    std::vector<const JsonMember*> sorted;
    for (const JsonMember& member : members)
        sorted.push_back(&member);
    std::sort(sorted.begin(), sorted.end(),
              [](const JsonMember* pA, const JsonMember* pB) { return pA->key < pB->key; });
    const auto found = std::adjacent_find(
        sorted.begin(), sorted.end(),
        [](const JsonMember* pA, const JsonMember* pB) { return pA->key == pB->key; });
    if (found != sorted.end())
        throw JsonFault(std::max((*found)->value.offset, found[1]->value.offset), "duplicate key");
}

}

std::vector<JsonMember> SplitObject(const JsonPiece& object)
{
    std::vector<JsonMember> members;
    Walk walk(object);
    walk.Expect('{');
    for (bool isMore = !walk.Skip('}'); isMore; isMore = !walk.Skip('}'))
    {
        if (!members.empty())
            walk.Expect(',');
        std::string key = walk.TakeKey();
        walk.Expect(':');
        members.push_back({std::move(key), walk.TakeValue()});
    }
    if (!walk.IsAtEnd())
        walk.Fail("more text after the end");
    RefuseDuplicates(members);
    return members;
}

std::vector<JsonPiece> SplitArray(const JsonPiece& array)
{
    std::vector<JsonPiece> elements;
    Walk walk(array);
    walk.Expect('[');
    for (bool isMore = !walk.Skip(']'); isMore; isMore = !walk.Skip(']'))
    {
        if (!elements.empty())
            walk.Expect(',');
        elements.push_back(walk.TakeValue());
    }
    if (!walk.IsAtEnd())
        walk.Fail("more text after the end");
    return elements;
}

std::string WithoutBlanks(std::string_view json)
{
    std::string result;
    bool isInText = false;
    bool isEscaped = false;
    for (const char c : json)
    {
        if (isInText || !IsBlank(c))
            result += c;
        if (c == '"' && !isEscaped)
            isInText = !isInText;
        isEscaped = c == '\\' && !isEscaped;
    }
    return result;
}
