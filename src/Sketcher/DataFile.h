#pragma once

#include <QString>

/// The path of a file in the user's data folder; creates the folder if it is missing.
QString DataFile(const QString& name);
