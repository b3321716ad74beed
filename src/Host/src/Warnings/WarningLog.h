#pragma once

#include "Platform/OutputFile.h"

#include <nlohmann/json.hpp>

#include <map>
#include <mutex>
#include <string>
#include <utility>

namespace vesk
{

/// The log of warnings and failed assertions: one JSON object per line, to a file or standard
/// error.
///
/// Thread-safe.
class WarningLog
{
public:
    /// Never destroyed, so that a warning in a thread that outlives main still finds it.
    static WarningLog& GetInstance();

    /// Closes the log, then appends to the file at `path` (UTF-8), which other programs may do as
    /// well. False if it cannot be opened.
    bool Open(const std::string& path);

    /// The file's absolute path (UTF-8); empty if none is open.
    std::string GetPath();

    /// Writes a closing line for each site with suppressed lines, resets all counts and closes the
    /// file. False if a file was open and a line is missing from it: that line went to standard
    /// error.
    bool Close();

    /// Counts one record of the site and writes it, with the time, the count and the last lines of
    /// the journal, unless the site has reached its limit of lines.
    void Add(const std::string& file, int line, nlohmann::ordered_json record);

private:
    using Place = std::pair<std::string, int>;

    WarningLog() = default;

    int CountUp(const Place& place);
    void WriteLine(const nlohmann::ordered_json& record);
    bool WriteToFile(const std::string& line);

    std::mutex m_mutex;
    OutputFile m_file;

    /// True while the file ends with an incomplete line.
    bool m_isTorn = false;
    bool m_isLineMissing = false;
    std::string m_path;
    std::map<Place, int> m_counts;
};

}
