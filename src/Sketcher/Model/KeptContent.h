#pragma once

#include <QByteArray>
#include <QHash>
#include <QMutex>
#include <QString>

#include <optional>

/// Content from outside the drawing that its journal refers to, kept beside the journal under the
/// digest of its bytes (SHA-256, hexadecimal), so that a replay needs nothing else.
///
/// May be used in any thread.
class KeptContent final
{
public:
    /// The content of this program's journal.
    static KeptContent& Get();

    /// Keeps it beside that journal from now on, in the folder "<journal>.kept"; with an empty path
    /// nowhere but in memory. What the session has kept or found so far goes along; what cannot be
    /// written stays in memory.
    void SetJournal(const QString& journalPath);

    /// Looks for content beside that journal, too; it is about to be replayed.
    void SetSource(const QString& journalPath);

    /// Back to the initial state; the files stay.
    void Forget();

    /// Keeps the bytes and returns their digest; nothing if they cannot be written.
    std::optional<QString> Keep(const QByteArray& bytes);

    /// The bytes with that digest; nothing if there are none, or if they are not what was kept.
    std::optional<QByteArray> Find(const QString& digest);

private:
    bool Write(const QString& digest, const QByteArray& bytes) const;

    QMutex m_mutex;
    QString m_folder; ///< Empty for none.
    QString m_sourceFolder;

    /// What this session has kept or found: the bytes only if they are in no folder of its own.
    QHash<QString, QByteArray> m_known;
};
