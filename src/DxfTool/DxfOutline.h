// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>

/// What a DXF file says about itself and which entities it has, whether or not they can be read.
struct DxfOutline
{
    bool isTextDxf = false; ///< It begins with a section or with comments before one.
    bool hasEnd = false;
    int unitCode = 0; ///< $INSUNITS; 0 if the file has no such variable.
    std::string codePage;

    /// The number of entities of each type that are in no block. Both types of polyline count as
    /// POLYLINE; its vertices are not counted.
    std::map<std::string, std::size_t> types;

    std::size_t CountEntities() const;
};

DxfOutline ScanDxf(std::string_view bytes);
