#include "Support/Platform/Debugger.h"

#include <QProcess>
#include <QStandardPaths>

namespace vesk::test
{

QStringList RunInDebugger(const QString& program, const QStringList& arguments,
                          const QByteArray& mark)
{
    const QString gdb = QStandardPaths::findExecutable("gdb");
    if (gdb.isEmpty())
        return {"gdb is missing; scripts/setup installs it"};
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    // Leak detection does not work in a process that is being debugged.
    environment.insert("ASAN_OPTIONS", "detect_leaks=0");
    process.setProcessEnvironment(environment);
    process.start(gdb,
                  QStringList{"-nx", "-batch", "-ex", "run", "-ex", "continue", "--args", program} +
                      arguments);
    process.waitForFinished(60000);

    QStringList events;
    for (const QByteArray& line : process.readAllStandardOutput().split('\n'))
    {
        if (line.contains("SIGTRAP"))
            events << "break";
        else if (line.startsWith(mark))
            events << QString::fromUtf8(line);
        else if (line.contains("exited normally"))
            events << "exit";
    }
    return events;
}

}
