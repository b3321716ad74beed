#pragma once

#include "Model/SketchContent.h"

#include <QString>

#include <string>

/// A drawing that was read from a file.
struct DrawingSource
{
    SketchContent content;
    std::string error; ///< Why it could not be read; empty if it was.
};

/// Reads a drawing file or a DXF file. The unit counts for a DXF file that does not name one.
DrawingSource ReadDrawing(const QString& path, const QString& dxfUnit);

/// Whether the name of a file is that of a DXF file.
bool IsDxfFile(const QString& path);
