#pragma once

#include <QByteArray>
#include <QStringList>

namespace vesk::test
{

/// Runs a program in a debugger that resumes it after each break.
///
/// The result is what happened, in order: "break", each line of output that begins with `mark`, and
/// "exit" for a successful exit. It ends once the program keeps the debugger waiting for a minute.
QStringList RunInDebugger(const QString& program, const QStringList& arguments,
                          const QByteArray& mark);

}
