#pragma once

#include <QString>

/// Where the program keeps what belongs to its user rather than to a drawing: in the user's own
/// folders, or, if a folder named "sketcher-data" stands beside that of the program, all in there:
/// it and its settings can then be carried on a stick.

/// The path of a file of settings.
QString ConfigurationFile(const QString& name);

/// The path of a file of the program's records: journals, warnings. Creates the folder if it is
/// missing.
QString DataFile(const QString& name);
