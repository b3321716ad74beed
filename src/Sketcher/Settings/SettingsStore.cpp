#include "Settings/SettingsStore.h"

#include "Model/UserFiles.h"

#include "Foundation/FileRewriting.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <utility>

namespace
{

/// The content of a file; empty if there is no path or it cannot be read.
std::string ReadSettingsText(const QString& path)
{
    QFile file(path);
    return !path.isEmpty() && file.open(QIODevice::ReadOnly) ? file.readAll().toStdString()
                                                             : std::string();
}

/// The former folders once another one has been chosen. That of the user's data needs no entry.
QStringList FormerFolders(const Settings& before, const QString& chosen)
{
    constexpr int MostFolders = 5;
    QStringList folders = before.formerJournalFolders;
    if (!before.journalFolder.isEmpty())
        folders.prepend(before.journalFolder);
    folders.removeDuplicates();
    folders.removeAll(chosen);
    return folders.mid(0, MostFolders);
}

}

SettingsStore::SettingsStore(const QString& readPath, const QString& writtenPath)
    : m_path(writtenPath), m_settings(SettingsFromText(ReadSettingsText(readPath)))
{}

bool SettingsStore::Set(const Settings& settings)
{
    if (settings == m_settings)
        return true;
    const Settings before = std::exchange(m_settings, settings);
    m_settings.formerJournalFolders = FormerFolders(before, settings.journalFolder);
    QDir().mkpath(QFileInfo(m_path).path());
    const bool isWritten =
        vesk::RewriteFile(m_path.toStdString(), ToText(m_settings, ReadSettingsText(m_path)));
    emit changed(before);
    return isWritten;
}

QString SettingsPath()
{
    return ConfigurationFile(QStringLiteral("settings.json"));
}
