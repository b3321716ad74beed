#pragma once

#include <QString>

class QWidget;

/// Asks where to export to, in one of the export formats. Returns an empty path if the user cancels
/// or the program ends meanwhile.
QString AskForExportPath(QWidget& window, const QString& drawingName);
