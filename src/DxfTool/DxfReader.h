// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "DxfReport.h"
#include "DxfUnit.h"

#include "Model/SketchContent.h"

#include <cstddef>
#include <functional>
#include <string>

/// How a DXF file is read.
struct DxfReadOptions
{
    const DxfUnit* pUnit = nullptr;      ///< Of files that do not name one; null if unknown.
    std::size_t greatestCount = 1000000; ///< Of entities, and of the vertices of a polyline.

    /// Called now and then with the share that has been read, from 0 to 1; may be empty.
    std::function<void(double)> progress;
};

/// The result of reading a DXF file.
struct DxfReading
{
    enum class Outcome
    {
        Done,
        NotDxf,  ///< Not a text DXF file.
        NoUnit,  ///< Neither the file nor the options name the unit.
        TooMany, ///< More than the greatest count.
    };

    Outcome outcome = Outcome::Done;
    SketchContent content; ///< In millimetres, in the drawing plane.
    DxfReport report;
};

/// Reads lines, arcs, circles and polylines of the model space, and the layers. Everything else is
/// left out and listed in the report; so is what could not be drawn. A file that ends early is read
/// as far as it goes. Bytes from anywhere do no harm.
DxfReading ReadDxf(const std::string& bytes, const DxfReadOptions& options);
