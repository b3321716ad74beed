#pragma once

#include "Output/PictureExport.h"

#include <string>
#include <vector>

/// A format in which drawings are written for other programs.
struct ExportFormat
{
    std::wstring name;    ///< In the journal; also the suffix of its files.
    std::wstring caption; ///< On screen; a source text.

    OutputBytes (*make)(const SketchContent& content, const OutputProgress& progress);
};

const std::vector<ExportFormat>& ExportFormats();

/// The format of that name; null if there is none.
const ExportFormat* FindExportFormat(const std::wstring& name);

/// The format that a file has by its suffix, in either case; null if there is none.
const ExportFormat* ExportFormatOf(const QString& path);

/// Writes a drawing in that format. The file is replaced only once its new content is complete; a
/// fault leaves it unchanged. May run in any thread.
OutputFault ExportDrawing(const SketchContent& content, const ExportFormat& format,
                          const QString& path, const OutputProgress& progress);
