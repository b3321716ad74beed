#pragma once

#include <QString>

#include <string>

struct Options;

namespace vesk
{
struct JournalReplayResult;
}

/// In which file a session's journal is kept: the one that an option names, or one below the user's
/// data folder.
///
/// A file that is read too, by whatever name, is continued once its records have been repeated, and
/// otherwise left as it is.
class SessionJournal final
{
public:
    explicit SessionJournal(const Options& options);

    /// Makes sure, before it is read, that a file which is to be continued is nobody else's. False
    /// when that cannot be; `error` then says why in one sentence.
    bool Reserve(std::string& error);

    /// Opens any other file. False when one that an option names cannot be written; without one of
    /// its own the session goes on all the same.
    bool Open(std::string& error);

    /// The records that were read, up to this number, have been repeated. Returns as
    /// LeaveForAnother: a file can be numbered to its end.
    QString GoOn(const vesk::JournalReplayResult& result, int lastNumber);

    /// Not all of them could be repeated: what was, and what comes, goes to another file. Returns
    /// its path; empty when the session's own file will do.
    QString LeaveForAnother();

    /// Nothing of what was repeated stands: begins anew. Returns as LeaveForAnother.
    QString StartAnew();

    /// False without a named file.
    bool IsNamed() const { return m_isNamed; }

    /// The file in use or meant to be.
    const QString& GetPath() const { return m_path; }

private:
    QString m_path; ///< Empty where a replay writes none.
    bool m_isNamed;
    bool m_isContinued; ///< It is the file that is read.
};
