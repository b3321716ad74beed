#pragma once

#include "Foundation/HostExport.h"
#include "Journal/JournalRecord.h"

#include <string>
#include <vector>

namespace vesk
{

/// The journal's file format: one JSON object a line, UTF-8.
///
/// Reading gives the very doubles written, whatever the locale. What is no finite number is written
/// as null and read as NaN. A record holds what its kind has and nothing else.
class VESK_HOST_API JournalFormat
{
public:
    /// The line of a record, without its line end.
    static std::string ToLine(const JournalRecord& record);

    /// Reads a line. False when it is no record; `error` then says why, in one sentence.
    static bool FromLine(const std::string& line, JournalRecord& record, std::string& error);

    /// Reads a whole file (UTF-8 path). A last line without a line end was torn and is left out.
    /// False when the file cannot be read or another line is bad; `error` names the line. Bad are
    /// also a number that is not above those before it, and an end without a command to end.
    /// `records` then holds what was read before.
    static bool ReadFile(const std::string& path, std::vector<JournalRecord>& records,
                         std::string& error);
};

}
