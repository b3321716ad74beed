// SPDX-License-Identifier: GPL-3.0-or-later

#include "DxfOutline.h"

#include <algorithm>
#include <charconv>

namespace
{

/// A code and its value: the two lines of which the whole file consists.
struct DxfPair
{
    int code = 0;
    std::string_view value;
};

int ToNumber(std::string_view text)
{
    int number = -1;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

/// Takes the pairs of a file one after another.
class PairReader
{
public:
    explicit PairReader(std::string_view bytes) : m_rest(bytes) {}

    /// Returns false at the end of the file.
    bool Take(DxfPair& pair)
    {
        if (m_rest.empty())
            return false;
        pair.code = ToNumber(TakeLine());
        pair.value = TakeLine();
        return true;
    }

private:
    /// Without the blanks around it.
    std::string_view TakeLine()
    {
        constexpr std::string_view Blanks = " \t\r";
        const std::size_t end = std::min(m_rest.find('\n'), m_rest.size());
        std::string_view line = m_rest.substr(0, end);
        m_rest.remove_prefix(std::min(end + 1, m_rest.size()));
        line.remove_prefix(std::min(line.find_first_not_of(Blanks), line.size()));
        line.remove_suffix(line.size() - (line.find_last_not_of(Blanks) + 1));
        return line;
    }

    std::string_view m_rest;
};

/// Follows the pairs of a file.
class OutlineScanner
{
public:
    void Scan(std::string_view bytes)
    {
        PairReader reader(bytes);
        DxfPair pair;
        while (reader.Take(pair) && pair.code == 999)
        {}
        m_outline.isTextDxf = pair.code == 0 && pair.value == "SECTION";
        if (!m_outline.isTextDxf)
            return;
        m_isSectionName = true;
        while (!m_outline.hasEnd && reader.Take(pair))
            OnPair(pair);
    }

    DxfOutline Take() { return std::move(m_outline); }

private:
    void OnPair(const DxfPair& pair)
    {
        if (pair.code == 0)
            OnType(pair.value);
        else if (pair.code == 2 && m_isSectionName)
            m_section = pair.value;
        else if (pair.code == 9)
            m_variable = pair.value;
        else if (pair.code == 70 && m_variable == "$INSUNITS")
            m_outline.unitCode = ToNumber(pair.value);
        else if (pair.code == 3 && m_variable == "$DWGCODEPAGE")
            m_outline.codePage = pair.value;
        m_isSectionName = pair.code == 0 && pair.value == "SECTION";
    }

    void OnType(std::string_view type)
    {
        constexpr std::string_view Others[] = {"VERTEX",  "SEQEND", "ATTRIB",
                                               "SECTION", "ENDSEC", "EOF"};
        m_variable = {};
        m_outline.hasEnd = type == "EOF";
        if (m_section != "ENTITIES" ||
            std::find(std::begin(Others), std::end(Others), type) != std::end(Others))
            return;
        ++m_outline.types[std::string(type == "LWPOLYLINE" ? "POLYLINE" : type)];
    }

    DxfOutline m_outline;
    std::string_view m_section;
    std::string_view m_variable;
    bool m_isSectionName = false;
};

}

std::size_t DxfOutline::CountEntities() const
{
    std::size_t count = 0;
    for (const auto& known : types)
        count += known.second;
    return count;
}

DxfOutline ScanDxf(std::string_view bytes)
{
    OutlineScanner scanner;
    scanner.Scan(bytes);
    return scanner.Take();
}
