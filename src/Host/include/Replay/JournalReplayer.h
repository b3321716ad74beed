#pragma once

#include "Foundation/HostExport.h"
#include "Journal/JournalRecord.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace vesk
{

/// Replays the journal's model records other than commands.
class VESK_HOST_API IJournalReplayTarget
{
public:
    virtual ~IJournalReplayTarget() = default;

    /// Called before each record with the number of records replayed so far and in total. Return
    /// false to stop the replay there.
    virtual bool OnProgress(std::size_t /*done*/, std::size_t /*total*/) { return true; }

    /// False for a command that cannot do what its parameters say.
    virtual bool CanRepeat(const CommandRecord& /*record*/) { return true; }

    /// Selects entities. False if one of them does not exist.
    virtual bool ReplaySelection(const SelectionRecord& record) = 0;

    /// Sets a property. False if there is none of that name.
    virtual bool ReplayProperty(const PropertyRecord& record) = 0;

    /// True if the last undo had the recorded result.
    virtual bool VerifyUndo(const UndoRecord& record) = 0;

    /// True if the last redo had the recorded result.
    virtual bool VerifyRedo(const RedoRecord& /*record*/) { return true; }

    /// The entity that the last undo or redo was about, for a message; nothing if that is unknown.
    virtual std::optional<int> GetLastUndone() { return std::nullopt; }

    /// The document's digest if it is not the recorded one, otherwise empty.
    virtual std::string VerifyMark(const MarkRecord& /*record*/) { return {}; }
};

/// The outcome of a replay.
struct JournalReplayResult
{
    /// Empty if nothing failed; otherwise why, and which record if it was one.
    std::string failure;

    /// The number of the record that failed; 0 if none did.
    int failedNumber = 0;

    /// The number of records replayed.
    std::size_t repeatedCount = 0;

    /// The target stopped the replay.
    bool isStopped = false;

    /// The commands whose completion mark is missing at the end of the journal.
    std::vector<std::wstring> unfinishedCommands;

    /// The marks to append to the journal before anything else; they do not change its meaning.
    std::vector<EndRecord> missingMarks;
};

/// Replays a journal through the registered commands, without an event loop.
class VESK_HOST_API JournalReplayer
{
public:
    /// Replays the records in order and stops at the first that fails or gives a different result.
    /// What was finished before that remains done. Runs no action event loop meanwhile; while one
    /// runs already, it fails and does nothing. What a command or the target throws is passed on,
    /// after the running action was ended.
    static JournalReplayResult Replay(const std::vector<JournalRecord>& records,
                                      IJournalReplayTarget& target);

    /// True while a journal is being replayed: nobody is there to answer a question.
    static bool IsReplaying();
};

}
