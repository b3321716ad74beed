#include "Documents/RecentFiles.h"

#include "Model/UserFiles.h"

#include <QFileInfo>
#include <QSettings>
#include <QUrl>

namespace
{

const QString& FilesKey()
{
    static const QString s_key = QStringLiteral("files");
    return s_key;
}

/// Each file as a URL: the versions of Qt encode letters beyond ASCII in different ways.
QStringList ToUrls(const QStringList& files)
{
    QStringList urls;
    for (const QString& file : files)
        urls << QString::fromLatin1(QUrl::fromLocalFile(file).toEncoded());
    return urls;
}

/// Earlier programs wrote the path itself.
QString FileOf(const QString& entry)
{
    const QUrl url = QUrl::fromEncoded(entry.toUtf8(), QUrl::StrictMode);
    return url.isLocalFile() ? url.toLocalFile() : entry;
}

}

RecentFiles::RecentFiles(const QString& path)
    : m_path(path.isEmpty() ? ConfigurationFile(QStringLiteral("recent.ini")) : path)
{}

QStringList RecentFiles::Get() const
{
    QStringList files;
    for (const QString& entry :
         QSettings(m_path, QSettings::IniFormat).value(FilesKey()).toStringList())
    {
        const QString file = FileOf(entry);
        if (QFileInfo(file).isFile() && files.size() < GreatestCount)
            files << file;
    }
    return files;
}

void RecentFiles::Add(const QString& file)
{
    const QString full = QFileInfo(file).absoluteFilePath();
    QStringList files = Get();
    files.removeAll(full);
    files.prepend(full);
    QSettings(m_path, QSettings::IniFormat)
        .setValue(FilesKey(), ToUrls(files.mid(0, GreatestCount)));
}
