#pragma once

#include "Output/DxfProcess.h"

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
    OutputFault fault = OutputFault::None; ///< None as soon as vesk-dxf has ended by itself.
    DxfToolCode code = DxfToolCode::Done;
    QByteArray document; ///< A drawing file; empty unless the code is Done.
    DxfReportText report;
};

/// Reads a DXF file with vesk-dxf. The unit ("mm", "cm", "m", "in", "ft") counts for files that do
/// not name one; with an empty unit such files give the code NoUnit. May be called in any thread.
DxfImport ImportDxf(const QByteArray& bytes, const QString& unit, const OutputProgress& progress);

/// Why there is no document.
QString CaptionOf(const DxfImport& failed);
