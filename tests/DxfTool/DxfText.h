// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <initializer_list>
#include <string>
#include <utility>

using DxfPairs = std::initializer_list<std::pair<int, const char*>>;

inline std::string ToDxf(const DxfPairs& pairs)
{
    std::string text;
    for (const auto& [code, value] : pairs)
        text += std::to_string(code) + "\n" + value + "\n";
    return text;
}

/// A file in millimetres with these entities, and with these tables.
inline std::string DxfFile(const DxfPairs& entities, const DxfPairs& tables = {})
{
    return ToDxf({{0, "SECTION"}, {2, "HEADER"}, {9, "$INSUNITS"}, {70, "4"}, {0, "ENDSEC"}}) +
           ToDxf({{0, "SECTION"}, {2, "TABLES"}}) + ToDxf(tables) + ToDxf({{0, "ENDSEC"}}) +
           ToDxf({{0, "SECTION"}, {2, "ENTITIES"}}) + ToDxf(entities) +
           ToDxf({{0, "ENDSEC"}, {0, "EOF"}});
}
