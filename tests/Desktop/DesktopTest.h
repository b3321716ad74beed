#pragma once

#include "Desktop/DesktopSession.h"
#include "Support/TestValues.h"
#include "Support/XServer.h"

#include <QObject>

#include <memory>
#include <optional>

namespace vesk
{

/// Base of the desktop tests: one X server per test class, one program per test function.
///
/// After each function the program is closed as a user closes it. It must exit with 0, and must not
/// have raised a debug warning or written to standard error. A failed function leaves its files in
/// desktop-failures/ next to the test programs.
class DesktopTest : public QObject
{
    Q_OBJECT

protected:
    DesktopSession& Session() { return *m_pSession; }
    XServer& Server() { return m_server; }

    /// Closes the program and returns the lines of its drawing; empty if it did not exit cleanly.
    QVector<DrawnLine> CloseAndReadLines();

    /// The corners of all drawn rectangles, in order, after the program has exited.
    QVector<QPointF> ReadCorners();

    /// Waits for the only line, closes the program and compares the line with what was typed; the
    /// angle only if there is one.
    bool DrawsOneLine(double length, std::optional<double> angle = {});

    /// Closes the program as a user does. Returns false if it did not exit cleanly.
    bool CloseProgram();

    /// Kills the program, as `kill -9` does.
    void KillProgram();

    /// This function has checked what the program wrote to standard error: it was expected.
    void AcceptErrorOutput() { m_isErrorOutputAccepted = true; }

    /// This function has raised warnings and checks the log itself.
    void AcceptWarnings() { m_areWarningsAccepted = true; }

    /// Called before each program starts: what it finds in its environment besides the rest.
    virtual DesktopSession::Environment PrepareEnvironment() { return {}; }

    /// A number from the environment, for runs longer than the default.
    static int CountFromEnvironment(const char* name, int everyday);

private slots:
    void initTestCase();
    void init();
    void cleanup();

private:
    void SaveEvidence();
    void CheckHealth();

    XServer m_server;
    std::unique_ptr<DesktopSession> m_pSession;
    bool m_isClosed = false;
    bool m_isErrorOutputAccepted = false;
    bool m_areWarningsAccepted = false;
};

}
