#pragma once

#include "Support/ChildProcess.h"

#include <QString>

namespace vesk
{

/// A private X server with a window manager, on the first free display number.
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

    /// For example ":7"; empty before the start.
    QString GetDisplay() const { return m_display; }
    QString GetError() const { return m_error; }

    /// Suspends the window manager until it is resumed, as on a busy machine.
    void PauseWindowManager();
    void ResumeWindowManager();

private:
    bool StartServer();
    bool StartWindowManager();

    ChildProcess m_server;
    ChildProcess m_windowManager;
    QString m_display;
    QString m_error;
};

}
