#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

/// The result of a run of the program.
struct Outcome
{
    int code = -1; ///< -1 if it did not exit by itself.
    QString error;
};

/// Runs the program itself to its end; `environment` ("NAME=value") is added to that of the test.
Outcome RunSketcher(const QStringList& arguments, const QStringList& environment = {});

/// The program itself, with its window, in a process that runs until it is ended.
class RunningSketcher final
{
public:
    /// Starts it and waits until `uiTree` reports that its window exists.
    RunningSketcher(const QStringList& arguments, const QString& uiTree);

    /// The same for a copy of the program; `environment` ("NAME=value") is added to the test's.
    RunningSketcher(const QString& copy, const QString& uiTree, const QStringList& environment);
    ~RunningSketcher();

    /// Asks it to end, as a session manager does, and returns the result of the run.
    Outcome Terminate();

    /// Ends it without warning, as a crash does.
    Outcome Kill();

    /// Waits until it exits by itself.
    Outcome Wait();

    qint64 GetProcessId() const { return m_process.processId(); }

private:
    void WaitFor(const QString& uiTree);

    QProcess m_process;
};

/// Runs the program to its end while none of its files may grow beyond this many bytes.
Outcome RunSketcherWithin(int fileSizeLimit, const QStringList& arguments);
