#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

/// The folder of the program's own journals, one file per session.
///
/// What belongs to a journal (kept content, snapshots) is beside it; the names of these files and
/// folders begin with the journal's name and a dot. They are moved and removed together with it.
class JournalFolder final
{
public:
    /// How much is kept of journals that nobody needs any more.
    struct Bounds
    {
        int journals = 100;
        qint64 bytes = 256 * 1024 * 1024;
    };

    /// The folder is created when the first journal is put there.
    explicit JournalFolder(const QString& path) : m_path(path) {}

    const QString& GetPath() const { return m_path; }

    /// The path of a journal that does not exist yet; creates the folder.
    QString NewPath() const;

    /// The paths of all journals, the newest first.
    QStringList GetJournals() const;

    /// Moves a journal that is elsewhere into the folder, with all that belongs to it, and returns
    /// its new path. Copies it where it cannot be moved. If neither is possible, returns nothing
    /// and leaves it unchanged.
    std::optional<QString> TakeIn(const QString& journal) const;

    /// Removes the oldest journals until the others are within the bounds. Those for which
    /// `isNeeded` holds stay, and do not count.
    void Prune(const Bounds& bounds, const std::function<bool(const QString&)>& isNeeded) const;

    /// The user has decided about a journal without an end: it is never offered again.
    static void Settle(const QString& journal);
    static bool IsSettled(const QString& journal);

    /// Removes a journal and all that belongs to it.
    static void Remove(const QString& journal);

    /// The paths of all that belongs to a journal.
    static QStringList GetCompanions(const QString& journal);

private:
    QString m_path;
};
