#pragma once

#include <nlohmann/json.hpp>

#include <fstream>
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

    /// Closes, then appends to the file at `path` (UTF-8). False when it cannot be opened.
    bool Open(const std::string& path);

    /// Writes a closing line for each place with suppressed lines, forgets all counts and closes
    /// the file.
    void Close();

    /// Counts one record of the place and writes it, completed by time, count and the end of the
    /// journal, unless the place has written its share of lines.
    void Add(const std::string& file, int line, nlohmann::ordered_json record);

private:
    using Place = std::pair<std::string, int>;

    WarningLog() = default;

    int CountUp(const Place& place);
    void WriteLine(const nlohmann::ordered_json& record);

    std::mutex m_mutex;
    std::ofstream m_file;
    std::map<Place, int> m_counts;
};

}
