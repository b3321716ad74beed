#pragma once

#include <QString>

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
    DxfToolFailed, ///< It ended with an error or was too slow.
};

/// On screen.
QString CaptionOf(OutputFault fault);

/// Shows that something was not put out or read, and why, in a window that blocks nothing; only
/// when somebody is there (VESK_UNATTENDED). It is destroyed with its parent.
void ShowOutputFault(QWidget& window, const QString& text, const QString& reason);

/// On standard error.
std::string DescribeOutputFault(OutputFault fault);
