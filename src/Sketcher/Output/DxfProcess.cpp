#include "Output/DxfProcess.h"

#include "Model/DocumentFile.h"

#include <nlohmann/json.hpp>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QStandardPaths>

#include <cstddef>
#include <string>

namespace
{

/// The path of the program; empty if it is not there.
QString FindDxfTool()
{
    const QString name = QStringLiteral("vesk-dxf");
    const QString beside =
        QStandardPaths::findExecutable(name, {QCoreApplication::applicationDirPath()});
    return beside.isEmpty() ? QStandardPaths::findExecutable(name) : beside;
}

/// The last share of the work that the messages tell; `before` if they tell none.
double LastShare(const QByteArray& messages, double before)
{
    const int end = messages.lastIndexOf('\n');
    const int start = messages.lastIndexOf('\n', end - 1) + 1;
    if (end < 0)
        return before;
    const nlohmann::json json =
        nlohmann::json::parse(messages.begin() + start, messages.begin() + end, nullptr, false);
    return json.is_object() && json.value("kind", "") == "progress" ? json.value("share", before)
                                                                    : before;
}

/// Follows the program until it ends. Returns false if it had to be killed.
bool WaitFor(QProcess& process, DxfRun& run, const OutputProgress& progress)
{
    constexpr int PauseMs = 50;
    constexpr qint64 LongestMs = 5 * 60 * 1000;
    QElapsedTimer time;
    time.start();
    double share = 0.0;
    while (!process.waitForFinished(PauseMs) && process.state() != QProcess::NotRunning)
    {
        run.messages += process.readAllStandardError();
        share = LastShare(run.messages, share);
        const bool isStopped = !progress(share);
        if (!isStopped && time.elapsed() < LongestMs)
            continue;
        run.fault = isStopped ? OutputFault::Stopped : OutputFault::DxfToolFailed;
        process.kill();
        process.waitForFinished();
        return false;
    }
    return true;
}

}

DxfRun RunDxfProcess(const QStringList& arguments, const QByteArray& input,
                     const OutputProgress& progress)
{
    DxfRun run;
    QProcess process;
    process.start(FindDxfTool(),
                  arguments + QStringList{QStringLiteral("--max-memory"), QStringLiteral("4096")});
    if (!process.waitForStarted())
    {
        run.fault = OutputFault::NoDxfTool;
        return run;
    }
    process.write(input);
    process.closeWriteChannel();
    if (!WaitFor(process, run, progress))
        return run;
    run.output = process.readAllStandardOutput();
    run.messages += process.readAllStandardError();
    run.code = static_cast<DxfToolCode>(process.exitCode());
    if (process.exitStatus() != QProcess::NormalExit)
        run.fault = OutputFault::DxfToolFailed;
    return run;
}

OutputBytes MakeDxf(const SketchContent& content, const OutputProgress& progress)
{
    const auto convert = [&progress](std::size_t done, std::size_t total) {
        return progress(total == 0 ? 0.0
                                   : 0.5 * static_cast<double>(done) / static_cast<double>(total));
    };
    const std::string document = DocumentFile::ToText(content, convert);
    if (document.empty())
        return {{}, OutputFault::Stopped};
    DxfRun run = RunDxfProcess({QStringLiteral("export")}, QByteArray::fromStdString(document),
                               [&progress](double) { return progress(0.5); });
    if (run.fault == OutputFault::None && run.code != DxfToolCode::Done)
        run.fault = OutputFault::DxfToolFailed;
    return run.fault == OutputFault::None ? OutputBytes{run.output} : OutputBytes{{}, run.fault};
}
