#pragma once

#include <QString>

/// The path of a file below the user's data folder, which is made where it is missing.
QString DataFile(const QString& name);
