#pragma once

#include <QByteArray>
#include <QStringList>

namespace vesk::test
{

/// Runs a program in a debugger that lets it go on after each break.
///
/// The result is what happened, in order: "break", each line of the program that begins with
/// `mark`, "exit" for one with success. Nothing more comes once it keeps the debugger waiting for
/// a minute.
QStringList RunInDebugger(const QString& program, const QStringList& arguments,
                          const QByteArray& mark);

}
