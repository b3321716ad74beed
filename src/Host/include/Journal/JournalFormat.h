#pragma once

#include "Foundation/HostExport.h"
#include "Journal/JournalRecord.h"

#include <string>
#include <vector>

namespace vesk
{

/// A line of a journal file.
struct JournalLine
{
    std::string text;     ///< As it is in the file, without the line terminator.
    JournalRecord record; ///< What the line says; meaningless if it could not be read.
};

/// The journal's file format: one JSON object per line, UTF-8 (docs/journal.md).
///
/// Reading gives exactly the doubles that were written, whatever the locale. A number that is not
/// finite is written as null and read as NaN. A record has the keys of its kind and no others.
class VESK_HOST_API JournalFormat
{
public:
    /// The line of a record, without the line terminator.
    static std::string ToLine(const JournalRecord& record);

    /// Appends that line to a text, which need not be empty. Allocates nothing for a record without
    /// parameters whose texts are ASCII, once the text has the capacity.
    static void AppendLine(const JournalRecord& record, std::string& text);

    /// Reads a line. False if it is not a record; `error` then says why, in one sentence.
    static bool FromLine(const std::string& line, JournalRecord& record, std::string& error);

    /// Reads a whole file (UTF-8 path). A last line without a terminator is incomplete and is
    /// skipped. False if the file cannot be read or another line is invalid; `error` names the
    /// line. Also invalid are a record number that is not greater than those before it, an end
    /// record without a command to end, a header that is not in the first line, and one of a newer
    /// version. `records` then holds the records read before that line.
    static bool ReadFile(const std::string& path, std::vector<JournalRecord>& records,
                         std::string& error);

    /// The same with the text of each line. `torn` is the incomplete last line; empty if there is
    /// none.
    static bool ReadLines(const std::string& path, std::vector<JournalLine>& lines,
                          std::string& torn, std::string& error);
};

}
