#include "DataFile.h"

#include <QDir>
#include <QStandardPaths>

QString DataFile(const QString& name)
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
    QDir().mkpath(folder);
    return folder + QLatin1Char('/') + name;
}
