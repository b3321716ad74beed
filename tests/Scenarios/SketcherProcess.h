#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

/// What came of a run of the program.
struct Outcome
{
    int code = -1; ///< -1 when it did not end by itself.
    QString error;
};

/// Runs the program itself to its end; `environment` ("NAME=value") is added to the test's own.
Outcome RunSketcher(const QStringList& arguments, const QStringList& environment = {});

/// The program itself, with its window, in a process that goes on until it is ended.
class RunningSketcher final
{
public:
    /// Starts it and waits until its window says in `uiTree` that it is there.
    RunningSketcher(const QStringList& arguments, const QString& uiTree);
    ~RunningSketcher();

    /// Sends a signal and returns what came of it.
    Outcome End(int signal);

    /// Waits until it ends by itself.
    Outcome Wait();

private:
    QProcess m_process;
};

/// Runs the program to its end while no file of it may grow beyond so many bytes.
Outcome RunSketcherWithin(int fileSizeLimit, const QStringList& arguments);
