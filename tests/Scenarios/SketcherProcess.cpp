#include "SketcherProcess.h"

#include "Support/TestValues.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <optional>

namespace
{

QString Program()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/../bin/sketcher");
}

void Start(QProcess& process, const QStringList& arguments, std::optional<int> fileSizeLimit)
{
    if (fileSizeLimit.has_value())
        process.start(QStringLiteral("prlimit"),
                      QStringList{QStringLiteral("--fsize=%1").arg(*fileSizeLimit), Program()} +
                          arguments);
    else
        process.start(Program(), arguments);
}

Outcome Finish(QProcess& process)
{
    if (process.state() != QProcess::NotRunning && !process.waitForFinished(vesk::test::PatienceMs))
        return {};
    const bool isEnded = process.exitStatus() == QProcess::NormalExit;
    QString error = QString::fromUtf8(process.readAllStandardError());
    // Lines end so on Windows.
    error.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    return {isEnded ? process.exitCode() : -1, error};
}

}

Outcome RunSketcher(const QStringList& arguments, const QStringList& environment)
{
    QProcess process;
    QStringList variables = QProcess::systemEnvironment();
    process.setEnvironment(variables << environment);
    Start(process, arguments, {});
    return Finish(process);
}

Outcome RunSketcherWithin(int fileSizeLimit, const QStringList& arguments)
{
    QProcess process;
    Start(process, arguments, fileSizeLimit);
    return Finish(process);
}

RunningSketcher::RunningSketcher(const QStringList& arguments, const QString& uiTree)
{
    Start(m_process, arguments + QStringList{QStringLiteral("--ui-tree"), uiTree}, {});
    WaitFor(uiTree);
}

RunningSketcher::RunningSketcher(const QString& copy, const QString& uiTree,
                                 const QStringList& environment)
{
    m_process.setEnvironment(QProcess::systemEnvironment() + environment);
    m_process.start(copy, {QStringLiteral("--ui-tree"), uiTree});
    WaitFor(uiTree);
}

void RunningSketcher::WaitFor(const QString& uiTree)
{
    const auto isThere = [this, &uiTree] {
        return QFileInfo(uiTree).size() > 0 || m_process.state() == QProcess::NotRunning;
    };
    if (!QTest::qWaitFor(isThere, vesk::test::PatienceMs))
        QTest::qFail("the program did not start", __FILE__, __LINE__);
}

RunningSketcher::~RunningSketcher()
{
    m_process.kill();
    m_process.waitForFinished();
}

Outcome RunningSketcher::Terminate()
{
    m_process.terminate();
    return Finish(m_process);
}

Outcome RunningSketcher::Kill()
{
    m_process.kill();
    return Finish(m_process);
}

Outcome RunningSketcher::Wait()
{
    return Finish(m_process);
}
