#include "Support/XServer.h"

#include "Support/Polling.h"

#include <QFile>
#include <QProcessEnvironment>
#include <QStandardPaths>

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
    if (!StartServer())
        return false;
    if (qEnvironmentVariable("VESK_DESKTOP_SESSION") == "wayland")
        return StartWayland();
    m_variables = {{"DISPLAY", m_display}};
    return StartWindowManager();
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

bool XServer::StartWayland()
{
    m_sockets.emplace();
    // A copy: containers do not start the installed one, which may raise its priority.
    const QString compositor = m_sockets->filePath("kwin_wayland");
    const QString installed = QStandardPaths::findExecutable("kwin_wayland");
    if (!QFile::copy(installed, compositor))
    {
        m_error = "kwin_wayland is not installed";
        return false;
    }
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DISPLAY", m_display);
    environment.insert("XDG_RUNTIME_DIR", m_sockets->path());
    environment.insert("HOME", m_sockets->path());
    environment.insert("KWIN_COMPOSE", "Q");
    environment.remove("QT_QPA_PLATFORM");
    m_windowManager.setProcessEnvironment(environment);
    m_windowManager.setStandardErrorFile(QProcess::nullDevice());
    // Once the session can take programs, it runs the last one: that prints where it is.
    m_windowManager.start(compositor,
                          {"--x11-display", m_display, "--width", "1400", "--height", "1000",
                           "--socket", "wayland-test", "--no-lockscreen", "--xwayland", "env"});
    QByteArray variables;
    const bool isReady = PollUntil([&] {
        m_windowManager.waitForReadyRead(50);
        variables += m_windowManager.readAllStandardOutput();
        return variables.contains("\nDISPLAY=") && variables.contains("\nWAYLAND_DISPLAY=");
    });
    m_variables = {{"XDG_RUNTIME_DIR", m_sockets->path()}, {"XDG_SESSION_TYPE", "wayland"}};
    for (const QByteArray& line : variables.split('\n'))
    {
        for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY"})
            if (line.startsWith(QByteArray(name) + '='))
                m_variables.insert(name, QString::fromLatin1(line.mid(line.indexOf('=') + 1)));
    }
    if (!isReady)
        m_error = "kwin_wayland does not start on " + m_display;
    return isReady;
}

}
