// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <iosfwd>
#include <string>
#include <vector>

/// What the program returns.
enum class DxfExit
{
    Done = 0,
    Usage = 1,
    Unusable = 2, ///< The input is not what it should be.
    TooLarge = 3, ///< More entities, or more memory, than allowed.
    NoUnit = 4,   ///< The file names no unit, and no option does.
    Unwritten = 5,
};

/// The program `vesk-dxf`: `export` turns a drawing file into DXF,
/// `import` a DXF file into a drawing file.
///
/// `--help` alone tells on `output` how to use it.
///
/// The report of an import is one JSON object per line of `messages`; `{"kind":"progress",
/// "share":0.5}` tells how far it is, and an error is `{"kind":"error","text":"..."}`. Nothing is
/// written to `output` unless everything went well.
DxfExit RunDxfTool(const std::vector<std::string>& arguments, std::istream& input,
                   std::ostream& output, std::ostream& messages);
