#include "Output/DxfProcess.h"

#include "Model/DocumentFile.h"

#include <nlohmann/json.hpp>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QStandardPaths>

#include <algorithm>
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

/// What the exit code of the program means.
OutputFault FaultOfExit(int code)
{
    switch (code)
    {
    case 0:
        return OutputFault::None;
    case 2:
        return OutputFault::NotDxf;
    case 3:
        return OutputFault::DxfTooLarge;
    case 4:
        return OutputFault::NoDxfUnit;
    default:
        return OutputFault::DxfToolFailed;
    }
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
    const auto share = json.find("share");
    return share != json.end() && share->is_number() ? std::clamp(share->get<double>(), 0.0, 1.0)
                                                     : before;
}

/// Takes what the program has written so far. Returns false if it is more than it can have to say.
bool TakeWritten(QProcess& process, DxfRun& run)
{
    constexpr int MostBytes = 1 << 30;
    constexpr int MostMessages = 1 << 24;
    run.output += process.readAllStandardOutput();
    run.messages += process.readAllStandardError();
    return run.output.size() <= MostBytes && run.messages.size() <= MostMessages;
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
        const bool isSane = TakeWritten(process, run) && time.elapsed() < LongestMs;
        share = LastShare(run.messages, share);
        const bool isStopped = !progress(share);
        if (!isStopped && isSane)
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
    const bool isSane = TakeWritten(process, run);
    const bool isEnded = process.exitStatus() == QProcess::NormalExit && isSane;
    run.fault = isEnded ? FaultOfExit(process.exitCode()) : OutputFault::DxfToolFailed;
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
    return run.fault == OutputFault::None ? OutputBytes{run.output} : OutputBytes{{}, run.fault};
}
