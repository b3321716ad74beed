#pragma once

#include "Foundation/HostExport.h"
#include "Journal/JournalRecord.h"

#include <cstddef>
#include <string>
#include <vector>

namespace vesk
{

/// Repeats what the journal holds of the model besides commands.
class VESK_HOST_API IJournalReplayTarget
{
public:
    virtual ~IJournalReplayTarget() = default;

    /// Told before each record, how many of all have been repeated. False stops the replay there.
    virtual bool OnProgress(std::size_t /*done*/, std::size_t /*total*/) { return true; }

    /// False for a command that could not do what its parameters say.
    virtual bool CanRepeat(const CommandRecord& /*record*/) { return true; }

    /// Selects entities. False when there is no such entity.
    virtual bool ReplaySelection(const SelectionRecord& record) = 0;

    /// Sets a property. False when there is none of that name.
    virtual bool ReplayProperty(const PropertyRecord& record) = 0;

    /// True when the last undo gave the result that the record names.
    virtual bool VerifyUndo(const UndoRecord& record) = 0;
};

/// How a replay went.
struct JournalReplayResult
{
    /// Empty when every record was repeated; else which one was not, and why.
    std::string failure;

    /// The number of the record that was not repeated; 0 when there is none.
    int failedNumber = 0;

    /// How many records were repeated.
    std::size_t repeatedCount = 0;

    /// The target stopped the replay.
    bool isStopped = false;

    /// The commands whose completion mark is missing at the end of the journal.
    std::vector<std::wstring> unfinishedCommands;

    /// The marks to be written behind the journal before anything else is: with them it means what
    /// it meant without.
    std::vector<EndRecord> missingMarks;
};

/// Repeats a journal through the registered commands, without an event loop.
class VESK_HOST_API JournalReplayer
{
public:
    /// Repeats the records in order and stops at the first that cannot be done or gives another
    /// result. What was finished before stays done. Runs no event loop of actions meanwhile.
    static JournalReplayResult Replay(const std::vector<JournalRecord>& records,
                                      IJournalReplayTarget& target);
};

}
