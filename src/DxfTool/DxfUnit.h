// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

/// A unit of length that a DXF file can have.
struct DxfUnit
{
    int code;         ///< The value of the file's variable $INSUNITS.
    const char* name; ///< On the command line.
    double millimetres;
};

/// The unit of that code or name; null if there is none. Code 0 means that the file has no unit.
const DxfUnit* FindDxfUnit(int code);
const DxfUnit* FindDxfUnit(const std::string& name);
