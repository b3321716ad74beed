#pragma once

#include "Output/OutputFault.h"
#include "Output/PaperPainter.h"

#include <QString>

struct PrintJob;

/// Prints a drawing, or writes it to the PDF file at that path if the job names no printer. May run
/// in any thread.
OutputFault PrintDrawing(const SketchContent& content, const PrintJob& job, const QString& pdfPath,
                         const OutputProgress& progress);
