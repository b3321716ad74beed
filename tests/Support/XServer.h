#pragma once

#include "Support/ChildProcess.h"

#include <QMap>
#include <QString>
#include <QTemporaryDir>

#include <optional>

namespace vesk
{

/// A private X server with a window manager, on the first free display number.
///
/// With VESK_DESKTOP_SESSION=wayland it shows a Wayland session instead (KWin, nested), which has
/// an X server of its own for programs.
class XServer
{
public:
    XServer() = default;
    ~XServer();
    XServer(const XServer&) = delete;
    XServer& operator=(const XServer&) = delete;

    /// Starts both and waits until the window manager is in control. Returns false if one of them
    /// cannot be started; `GetError` then says which.
    bool Start();

    /// Ends the server under the programs that show something on it.
    void Kill();

    /// Where programs show their windows, for example ":7"; empty before the start.
    QString GetDisplay() const { return m_variables.value("DISPLAY"); }

    /// Where keys, clicks and pictures of the screen are real ones.
    QString GetDevices() const { return m_display; }

    /// The environment variables by which programs find the session.
    QMap<QString, QString> GetVariables() const { return m_variables; }

    QString GetError() const { return m_error; }

    /// Suspends the window manager until it is resumed, as on a busy machine.
    void PauseWindowManager();
    void ResumeWindowManager();

private:
    bool StartServer();
    bool StartWindowManager();
    bool StartWayland();

    ChildProcess m_server;
    ChildProcess m_windowManager;
    QString m_display;
    QMap<QString, QString> m_variables;
    std::optional<QTemporaryDir> m_sockets; ///< Of the Wayland session.
    QString m_error;
};

}
