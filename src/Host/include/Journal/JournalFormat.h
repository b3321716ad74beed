#pragma once

#include "Foundation/HostExport.h"
#include "Journal/JournalRecord.h"

#include <string>
#include <vector>

namespace vesk
{

/// The journal's file format: one JSON object a line, UTF-8. Reading gives the very doubles written.
class VESK_HOST_API JournalFormat
{
public:
    /// The line of a record, without its line end.
    static std::string ToLine(const JournalRecord& record);

    /// Reads a line. False when it is no record; `error` then says why, in one sentence.
    static bool FromLine(const std::string& line, JournalRecord& record, std::string& error);

    /// Reads a whole file (UTF-8 path). A last line without a line end was torn and is left out.
    /// False when the file cannot be read or another line is bad; `error` names the line.
    static bool ReadFile(const std::string& path, std::vector<JournalRecord>& records,
                         std::string& error);
};

}
