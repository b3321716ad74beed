#include "Support/XServer.h"

#include "Support/Polling.h"

#include <QProcessEnvironment>

#include <csignal>

namespace vesk
{

XServer::~XServer()
{
    m_windowManager.End();
    m_server.End();
}

bool XServer::Start()
{
    return StartServer() && StartWindowManager();
}

void XServer::Kill()
{
    m_server.kill();
    m_server.waitForFinished();
}

void XServer::PauseWindowManager()
{
    kill(static_cast<pid_t>(m_windowManager.processId()), SIGSTOP);
}

void XServer::ResumeWindowManager()
{
    kill(static_cast<pid_t>(m_windowManager.processId()), SIGCONT);
}

bool XServer::StartServer()
{
    // The display number is printed on standard output. Without -noreset the server restarts when a
    // client query ends.
    m_server.setStandardErrorFile(QProcess::nullDevice());
    m_server.start("Xvfb", {"-displayfd", "1", "-screen", "0", "1400x1000x24", "-nolisten", "tcp",
                            "-noreset"});
    if (!m_server.waitForStarted())
    {
        m_error = "Xvfb: " + m_server.errorString();
        return false;
    }
    QByteArray number;
    const bool hasNumber = PollUntil([&] {
        m_server.waitForReadyRead(50);
        number += m_server.readAllStandardOutput();
        return number.endsWith('\n');
    });
    if (!hasNumber)
    {
        m_error = "Xvfb did not tell its display number";
        return false;
    }
    m_display = ":" + QString::fromLatin1(number.trimmed());
    return true;
}

bool XServer::StartWindowManager()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DISPLAY", m_display);
    m_windowManager.setProcessEnvironment(environment);
    m_windowManager.setStandardOutputFile(QProcess::nullDevice());
    m_windowManager.setStandardErrorFile(QProcess::nullDevice());
    m_windowManager.start("openbox", QStringList());
    const bool rules = PollUntil([&] {
        QProcess query;
        query.setProcessEnvironment(environment);
        query.start("xprop", {"-root", "_NET_SUPPORTING_WM_CHECK"});
        query.waitForFinished();
        return query.readAllStandardOutput().contains("window id #");
    });
    if (!rules)
        m_error = "openbox does not manage " + m_display;
    return rules;
}

}
