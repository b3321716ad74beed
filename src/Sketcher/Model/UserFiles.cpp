#include "Model/UserFiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

namespace
{

/// The user's folder of this kind, or the one that is carried along with the program.
QString FolderOf(QStandardPaths::StandardLocation kind)
{
    const QDir carried(QCoreApplication::applicationDirPath() +
                       QStringLiteral("/../sketcher-data"));
    return carried.exists() ? QDir::cleanPath(carried.path())
                            : QStandardPaths::writableLocation(kind);
}

}

QString ConfigurationFile(const QString& name)
{
    return FolderOf(QStandardPaths::AppConfigLocation) + QLatin1Char('/') + name;
}

QString DataFile(const QString& name)
{
    const QString folder = FolderOf(QStandardPaths::AppLocalDataLocation);
    QDir().mkpath(folder);
    return folder + QLatin1Char('/') + name;
}
