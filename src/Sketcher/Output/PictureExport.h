#pragma once

#include "Output/OutputFault.h"
#include "Output/PaperPainter.h"

#include <QByteArray>
#include <QString>

class QPageLayout;

/// The content of a file that was made of a drawing.
struct OutputBytes
{
    QByteArray bytes; ///< Empty unless there is no fault.
    OutputFault fault = OutputFault::None;
};

/// Replaces a file by what was made, or leaves it unchanged if there is a fault. May run in any
/// thread.
OutputFault WriteOutput(const OutputBytes& made, const QString& path);

/// These make a picture of what is visible of a drawing, with a margin of 5 mm. They may run in any
/// thread.

/// At true scale: a unit is a millimetre. Numbers have six digits. At most 10 km large.
OutputBytes MakeSvg(const SketchContent& content, const OutputProgress& progress);

/// One page at true scale, at most 5080 mm large, which is the format's limit.
OutputBytes MakePdf(const SketchContent& content, const OutputProgress& progress);

/// One page with that layout, without margins.
OutputBytes MakePdfPage(const SketchContent& content, const PaperPlacement& placement,
                        const QPageLayout& layout, const OutputProgress& progress);

/// At 300 pixels per inch of paper, on white. A drawing that would need more than 6000 pixels in
/// one direction is reduced to that; its line widths stay as they are.
OutputBytes MakePng(const SketchContent& content, const OutputProgress& progress);
