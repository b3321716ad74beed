#pragma once

#include <QString>

#include <new>
#include <string>

class QWidget;

/// Why a drawing could not be put out.
enum class OutputFault
{
    None,
    Stopped,        ///< By the user.
    NothingVisible, ///< The drawing is empty, or all its entities are on hidden layers.
    TooLarge,       ///< At true scale the format has no sheet of that size.
    OutOfMemory,
    CannotRead,
    CannotWrite,
    NoDxfTool,     ///< The program vesk-dxf cannot be started.
    DxfToolFailed, ///< It ended in a way that it should not, or was too slow.
    DxfTooLarge,   ///< More entities than it handles, or not enough memory for them.
    NotDxf,
    NoDxfUnit, ///< The file names no unit, and nobody else does.
};

/// The fault of the work, which may be that there is not enough memory for it.
template <class Work>
OutputFault UnlessOutOfMemory(const Work& work)
{
    try
    {
        return work();
    }
    catch (const std::bad_alloc&)
    {
        return OutputFault::OutOfMemory;
    }
}

/// On screen.
QString CaptionOf(OutputFault fault);

/// Shows that something was not put out or read, and why, in a window that blocks nothing; only
/// when somebody is there (VESK_UNATTENDED). It is destroyed with its parent.
void ShowOutputFault(QWidget& window, const QString& text, const QString& reason);

/// On standard error.
std::string DescribeOutputFault(OutputFault fault);
