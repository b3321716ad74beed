#pragma once

#include "Platform/OutputFile.h"

#include <nlohmann/json.hpp>

#include <map>
#include <mutex>
#include <string>
#include <utility>

namespace vesk
{

/// The log of warnings and failed assertions: one JSON object a line, to a file or standard error.
///
/// Safe to use from any thread.
class WarningLog
{
public:
    /// Never destroyed, so that a warning of a late thread still finds it.
    static WarningLog& GetInstance();

    /// Closes, then appends to the file at `path` (UTF-8), which other programs may do, too. False
    /// when it cannot be opened.
    bool Open(const std::string& path);

    /// The file's absolute path (UTF-8); empty while none is open.
    std::string GetPath();

    /// Writes a closing line for each place with suppressed lines, forgets all counts and closes
    /// the file. False when there was a file and a line is missing in it: that one went to standard
    /// error.
    bool Close();

    /// Counts one record of the place and writes it, completed by time, count and the end of the
    /// journal, unless the place has written its share of lines.
    void Add(const std::string& file, int line, nlohmann::ordered_json record);

private:
    using Place = std::pair<std::string, int>;

    WarningLog() = default;

    int CountUp(const Place& place);
    void WriteLine(const nlohmann::ordered_json& record);
    bool WriteToFile(const std::string& line);

    std::mutex m_mutex;
    OutputFile m_file;

    /// True while the end of the file is no line end: a line was torn there.
    bool m_isTorn = false;
    bool m_isLineMissing = false;
    std::string m_path;
    std::map<Place, int> m_counts;
};

}
