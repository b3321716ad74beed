#pragma once

#include <QString>

/// The path of a file in the user's data folder, which is created if it is missing.
QString DataFile(const QString& name);
