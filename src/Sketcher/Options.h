#pragma once

#include "ReplayOptions.h"

#include <QString>
#include <QStringList>

/// What the command line asks for. File names are empty if not given.
struct Options
{
    /// What to do instead of opening the window.
    enum class Task
    {
        Draw,
        Replay,
        ShowHelp,
        ShowVersion,
    };

    Task task = Task::Draw;
    QString document; ///< The drawing file to open.
    QString journal;
    QString replay;
    QString open;
    QString model;
    QString uiTree;
    QString log;
    QString screenshot;

    /// The unit of a DXF file that names none; empty to ask.
    QString dxfUnit;

    /// A drawing that was read is written here, in the format of the suffix, without a window.
    QString exportFile;

    /// Which debug warnings to raise once the window is open; empty for none.
    QString raiseWarnings;

    ReplayOptions repetition;

    /// One line; empty if the command line is valid and every named file is usable.
    QString error;

    /// What --help prints.
    QString help;

    /// The journal to replay; empty for none.
    const QString& GetSource() const { return replay.isEmpty() ? open : replay; }
};

/// True if both names refer to the same file, directly or through links, or will once it exists.
bool IsSameFile(const QString& first, const QString& second);

/// True unless the environment says that nobody is there, with VESK_UNATTENDED=1.
bool IsAttended();

/// Reads the arguments (the program's name first).
Options ParseOptions(const QStringList& arguments);
