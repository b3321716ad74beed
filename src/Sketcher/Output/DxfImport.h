#pragma once

#include "Output/DxfProcess.h"

#include "Model/SketchContent.h"

#include <QString>
#include <QStringList>

/// The report of an import, in the words of the user.
struct DxfReportText
{
    int importedCount = 0;
    QStringList remarks; ///< What was left out or changed; empty if nothing was.
};

/// Reads the messages of vesk-dxf.
DxfReportText ReadDxfReport(const QByteArray& messages);

/// What came of reading a DXF file.
struct DxfImport
{
    OutputFault fault = OutputFault::None;
    QByteArray document;   ///< A drawing file; empty if there is a fault.
    SketchContent content; ///< What is in that file.
    DxfReportText report;
};

/// Reads a DXF file with vesk-dxf. The unit ("mm", "cm", "m", "in", "ft") counts for files that do
/// not name one; with an empty unit such files give the fault NoDxfUnit. May be called in any
/// thread.
DxfImport ImportDxf(const QString& path, const QString& unit, const OutputProgress& progress);
