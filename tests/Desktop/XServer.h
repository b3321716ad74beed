#pragma once

#include "Desktop/ChildProcess.h"

#include <QString>

namespace vesk
{

/// An X server of our own with a window manager, on the first display number that is free.
class XServer
{
public:
    XServer() = default;
    ~XServer();
    XServer(const XServer&) = delete;
    XServer& operator=(const XServer&) = delete;

    /// Starts both and waits until the window manager rules. False when one of them cannot be
    /// started; `GetError` then says which.
    bool Start();

    /// ":7", empty before the start.
    QString GetDisplay() const { return m_display; }
    QString GetError() const { return m_error; }

    /// Has the window manager do nothing until it is told to go on, as on a machine that is busy.
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
