#pragma once

#include <QString>

class QWidget;
struct DxfReportText;

// The first two return an empty text if the user cancels or the program ends meanwhile.

/// Asks which DXF file to import.
QString AskForImportPath(QWidget& window);

/// Asks in which unit a DXF file is; returns the name that vesk-dxf knows.
QString AskForDxfUnit(QWidget& window, const QString& fileName);

/// Shows what an import left out or changed, in a window that blocks nothing.
void ShowImportReport(QWidget& window, const QString& fileName, const DxfReportText& report);
