#pragma once

#include <QString>

class QWidget;

// Both suggest a name without an ending, and return an empty path if the user cancels or the
// program ends meanwhile.

/// Asks where to export to, in one of the export formats.
QString AskForExportPath(QWidget& window, const QString& suggestion);

/// Asks which PDF file to print to.
QString AskForPdfPath(QWidget& window, const QString& suggestion);
