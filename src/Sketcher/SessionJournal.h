#pragma once

#include "Recovery/JournalFolder.h"

#include "Journal/JournalRecord.h"

#include <QString>
#include <QStringList>

#include <string>
#include <vector>

struct Options;

namespace vesk
{
struct JournalReplayResult;
}

/// The journal file of a session: the one named by an option, or one in the user's data folder.
///
/// A file that is also read, under whatever name, is continued once its records have been replayed,
/// and otherwise left unchanged.
class SessionJournal final
{
public:
    explicit SessionJournal(const Options& options);

    /// The folder of the journals that no option names: "journals" in the user's data folder unless
    /// another path is set.
    static JournalFolder GetFolder();

    /// Sets that folder for the journals of this process, and creates it. Empty, or one that cannot
    /// be used, for the one in the data folder. `former` are folders in which journals of earlier
    /// sessions may be.
    static void SetFolder(const QString& path, const QStringList& former = {});

    /// All folders with journals of this program: the one in use first, the others after it.
    static std::vector<JournalFolder> GetFolders();

    /// Reserves a file that is to be continued for this session before it is read. Returns false if
    /// that fails; `error` then says why in one sentence.
    bool Reserve(std::string& error);

    /// Opens any other file. Returns false if a file named by an option cannot be written; the
    /// session can do without the one in the user's data folder. Unsaved work in a file that is to
    /// be replaced is moved to that folder first, or copied; if neither is possible, the file stays
    /// as it is and this fails.
    bool Open(std::string& error);

    /// Where unsaved work in the file that was replaced is now; empty if there was none.
    const QString& GetSecured() const { return m_secured; }

    /// Call when the records that were read, up to this number, have been replayed. Returns the
    /// same as LeaveForAnother, because a file's numbers may be used up.
    QString GoOn(const vesk::JournalReplayResult& result, int lastNumber);

    /// Call when not all of them could be replayed: those that were, and all new ones, go to
    /// another file. Returns its path; empty if the current file is not the one that was read.
    QString LeaveForAnother();

    /// Call when nothing of the replay remains: starts a new journal. Returns the same as
    /// LeaveForAnother.
    QString StartAnew();

    /// What the user has decided about the drawing when the session ends.
    enum class Work
    {
        Decided,   ///< It was saved, or need not be.
        Undecided, ///< Nobody was asked: it is to be offered at the next start.
    };

    /// Records the orderly end unless the work is undecided, and closes the file. Returns false if
    /// records are missing from it.
    bool Close(Work work);

    /// Leaves the file in use as it is and begins another, for records of that version. Returns the
    /// path of the one that was left.
    QString StartAnother(int version = vesk::HeaderRecord::CurrentVersion);

    /// Whether an option named the file.
    bool IsNamed() const { return m_isNamed; }

    /// The file in use, or to be used.
    const QString& GetPath() const { return m_path; }

private:
    bool SecureReplaced(std::string& error);

    QString m_path; ///< Empty if a replay writes none.
    bool m_isNamed;
    bool m_isContinued; ///< Whether it is also the file that is read.
    QString m_secured;
};
