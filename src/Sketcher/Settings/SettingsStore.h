#pragma once

#include "Settings/Settings.h"

#include <QObject>

/// The user's settings, kept in a file from one run to the next.
class SettingsStore final : public QObject
{
    Q_OBJECT

public:
    /// Reads the file; without a path it starts with the defaults, and keeps changes in
    /// `writtenPath` all the same.
    SettingsStore(const QString& readPath, const QString& writtenPath);

    const Settings& Get() const { return m_settings; }

    /// Changes the settings and writes them. Returns false if the file cannot be written: they then
    /// hold for this run only.
    bool Set(const Settings& settings);

    /// The file to which they are written.
    const QString& GetPath() const { return m_path; }

signals:
    /// The settings are no longer those that are handed over.
    void changed(const Settings& before);

private:
    QString m_path;
    Settings m_settings;
};

/// The settings file in the user's configuration folder.
QString SettingsPath();
