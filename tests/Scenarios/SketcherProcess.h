#pragma once

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
