#include "Documents/RecentFiles.h"

#include "Model/UserFiles.h"

#include <QFileInfo>
#include <QSettings>

namespace
{

const QString& FilesKey()
{
    static const QString s_key = QStringLiteral("files");
    return s_key;
}

}

RecentFiles::RecentFiles(const QString& path)
    : m_path(path.isEmpty() ? ConfigurationFile(QStringLiteral("recent.ini")) : path)
{}

QStringList RecentFiles::Get() const
{
    QStringList files;
    for (const QString& file :
         QSettings(m_path, QSettings::IniFormat).value(FilesKey()).toStringList())
    {
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
        .setValue(FilesKey(), QStringList(files.mid(0, GreatestCount)));
}
