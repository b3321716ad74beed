#include "SketcherProcess.h"

#include <QCoreApplication>
#include <QProcess>

Outcome RunSketcher(const QStringList& arguments, const QStringList& environment)
{
    QProcess process;
    QStringList variables = QProcess::systemEnvironment();
    process.setEnvironment(variables << environment);
    process.start(QCoreApplication::applicationDirPath() + QStringLiteral("/../bin/sketcher"),
                  arguments);
    if (!process.waitForFinished())
        return {};
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardError())};
}
