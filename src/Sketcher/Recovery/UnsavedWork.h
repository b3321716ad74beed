#pragma once

#include "Journal/JournalRecord.h"

#include <QDateTime>
#include <QString>

#include <optional>
#include <string>
#include <vector>

/// What a session did that ended without a decision about it: it crashed, or the system ended it.
struct UnsavedWork
{
    QString journal;      ///< The path of its journal.
    std::wstring command; ///< The id of the last command; empty for none.
    QDateTime time;       ///< When the journal was written last.
    int steps = 0;        ///< The finished changes since the drawing was begun, opened or saved.
    bool isReadInFull = true; ///< False if a line is damaged: only those before it count.
};

/// True if the journal says that its session ended in order. Reads only the end of the file; false
/// if it cannot be read.
bool IsEnded(const QString& journal);

/// False if the journal is damaged or cannot be read now: there may be work in it all the same.
bool IsReadable(const QString& journal);

/// The work in a journal. Nothing if no step was finished, or if the drawing is as it was when it
/// was opened or saved. Reads the whole file; may be called in any thread.
std::optional<UnsavedWork> FindUnsavedWork(const QString& journal);

/// The records that were completed, to be replayed after a crash: without those that began
/// something of which no later record says that it was finished. All of them in a journal without
/// marks.
std::vector<vesk::JournalRecord> CompletedOf(const std::vector<vesk::JournalRecord>& records);
