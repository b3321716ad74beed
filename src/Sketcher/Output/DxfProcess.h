#pragma once

#include "Output/PictureExport.h"

#include <QByteArray>
#include <QStringList>

/// What the program vesk-dxf returns.
enum class DxfToolCode
{
    Done = 0,
    Usage = 1,
    Unusable = 2,
    TooLarge = 3,
    NoUnit = 4,
    Unwritten = 5,
};

/// The result of a run of vesk-dxf.
struct DxfRun
{
    OutputFault fault = OutputFault::None; ///< None as soon as the program has ended by itself.
    DxfToolCode code = DxfToolCode::Done;
    QByteArray output;
    QByteArray messages; ///< One JSON object per line.
};

/// Runs the program vesk-dxf, which is beside this program or on the path, with these arguments and
/// this input. It gets 4 GB of memory and 5 minutes; one that is stopped or too slow is killed. May
/// be called in any thread.
DxfRun RunDxfProcess(const QStringList& arguments, const QByteArray& input,
                     const OutputProgress& progress);

/// Makes a DXF file with all layers, whether visible or not.
OutputBytes MakeDxf(const SketchContent& content, const OutputProgress& progress);
