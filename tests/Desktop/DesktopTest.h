#pragma once

#include "Desktop/DesktopSession.h"
#include "Desktop/XServer.h"
#include "Support/TestValues.h"

#include <QObject>

#include <memory>

namespace vesk
{

/// What the desktop tests share: one X server for a test class, one program for each of its
/// functions.
///
/// After each function the program is closed as a user closes it. It must exit with 0, and must
/// have raised no debug warning and written nothing to standard error. What failed leaves its files
/// in desktop-failures/ beside the test programs.
class DesktopTest : public QObject
{
    Q_OBJECT

protected:
    DesktopSession& Session() { return *m_pSession; }
    XServer& Server() { return m_server; }

    /// Closes the program and returns the lines that it had; empty when it did not end well.
    QVector<DrawnLine> CloseAndReadLines();

    /// Closes the program as a user does. False when it did not end well.
    bool CloseProgram();

    /// Ends the program as `kill -9` does.
    void KillProgram();

    /// This function has read what the program wrote to standard error: it was meant to be there.
    void AcceptErrorOutput() { m_isErrorOutputAccepted = true; }

    /// This function has raised warnings and judges the log itself.
    void AcceptWarnings() { m_areWarningsAccepted = true; }

    /// A number from the environment, for runs that are longer than the everyday one.
    static int CountFromEnvironment(const char* name, int everyday);

private slots:
    void initTestCase();
    void init();
    void cleanup();

private:
    void CheckHealth();

    XServer m_server;
    std::unique_ptr<DesktopSession> m_pSession;
    bool m_isClosed = false;
    bool m_isErrorOutputAccepted = false;
    bool m_areWarningsAccepted = false;
};

}
