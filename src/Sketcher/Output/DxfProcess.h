#pragma once

#include "Output/PictureExport.h"

#include <QByteArray>
#include <QStringList>

/// The result of a run of vesk-dxf.
struct DxfRun
{
    OutputFault fault = OutputFault::None;
    QByteArray output;
    QByteArray messages; ///< One JSON object per line, if the program is what it should be.
};

/// Runs the program vesk-dxf, which is beside this program or on the path, with these arguments and
/// this input. It gets 4 GB of memory and 5 minutes; one that is stopped, is too slow or writes
/// without end is killed. May be called in any thread.
DxfRun RunDxfProcess(const QStringList& arguments, const QByteArray& input,
                     const OutputProgress& progress);

/// Makes a DXF file with all layers, whether visible or not.
OutputBytes MakeDxf(const SketchContent& content, const OutputProgress& progress);
