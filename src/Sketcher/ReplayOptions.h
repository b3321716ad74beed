#pragma once

#include <QString>

#include <optional>
#include <vector>

class QCommandLineParser;

namespace vesk
{
struct JournalRecord;
}

/// How a journal is recorded and replayed, as the command line says.
struct ReplayOptions
{
    bool isSynced = false;    ///< Each record is brought to disk before what it records is done.
    std::optional<int> until; ///< The number of the last record to be replayed.
    bool isRealTime = false;  ///< In the window, as fast as it was recorded.
    bool isStaying = false;   ///< The window stays open after the replay.

    /// Makes the options known to the parser.
    static void Declare(QCommandLineParser& parser);

    /// Reads what was parsed. `error` is set, in one line, if a value is unusable or one of the
    /// options lacks --replay; `isContinued` says that the journal read would be continued.
    static ReplayOptions Read(const QCommandLineParser& parser, bool isContinued, QString& error);

    /// Drops the records after the last one to be replayed.
    void Cut(std::vector<vesk::JournalRecord>& records) const;
};
