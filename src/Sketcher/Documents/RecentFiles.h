#pragma once

#include <QString>
#include <QStringList>

/// The drawing files that were opened or saved last, kept in the user's configuration folder.
class RecentFiles final
{
public:
    static constexpr int GreatestCount = 10;

    /// In the default place if the path is empty.
    explicit RecentFiles(const QString& path = QString());

    /// Those that exist, the last one first.
    QStringList Get() const;

    /// Puts a file first. A list that cannot be written stays as it was.
    void Add(const QString& file);

private:
    QString m_path;
};
