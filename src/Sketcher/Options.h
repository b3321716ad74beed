#pragma once

#include <QString>
#include <QStringList>

/// What the command line asks for. File names are empty where nothing is asked.
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
    QString journal;
    QString replay;
    QString open;
    QString model;
    QString uiTree;
    QString log;
    QString screenshot;

    /// Which debug warnings to raise once the window stands; empty for none.
    QString raiseWarnings;

    /// One line; empty when the command line makes sense and every file named can be used.
    QString error;

    /// What --help prints.
    QString help;

    /// The journal that is to be repeated; empty for none.
    const QString& GetSource() const { return replay.isEmpty() ? open : replay; }
};

/// True when both names are those of one file, links or not, or will be.
bool IsSameFile(const QString& first, const QString& second);

/// Reads the arguments (the program's name first).
Options ParseOptions(const QStringList& arguments);
