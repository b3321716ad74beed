#include "Warnings/WarningLog.h"

#include "Foundation/UtcTime.h"
#include "Journal/JournalManager.h"

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <utility>

namespace vesk
{

namespace
{

constexpr int MaxLinesPerPlace = 10;

std::string GetNow()
{
    return FormatUtcTime(std::chrono::system_clock::now());
}

void ReplaceAll(std::string& text, std::string_view what, std::string_view by)
{
    for (std::size_t at = text.find(what); at != std::string::npos;
         at = text.find(what, at + by.size()))
        text.replace(at, what.size(), by);
}

/// True if a file ends in the middle of a line.
bool IsTorn(const std::filesystem::path& path)
{
    std::ifstream stream(path, std::ios::binary | std::ios::ate);
    if (!stream.is_open() || stream.tellg() <= 0)
        return false;
    stream.seekg(-1, std::ios::end);
    return stream.get() != '\n';
}

/// The record in one line, even for readers that treat Unicode line separators as line ends.
std::string ToLine(const nlohmann::ordered_json& record)
{
    std::string line = record.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
    ReplaceAll(line, "\xC2\x85", "\\u0085");
    ReplaceAll(line, "\xE2\x80\xA8", "\\u2028");
    ReplaceAll(line, "\xE2\x80\xA9", "\\u2029");
    return line + '\n';
}

}

WarningLog& WarningLog::GetInstance()
{
    static WarningLog* const s_pLog = new WarningLog;
    return *s_pLog;
}

bool WarningLog::Open(const std::string& path)
{
    Close();
    const std::lock_guard lock(m_mutex);
    const std::filesystem::path file = std::filesystem::u8path(path);
    m_isTorn = IsTorn(file);
    if (!m_file.OpenShared(file))
        return false;
    m_path = std::filesystem::absolute(file).u8string();
    return true;
}

std::string WarningLog::GetPath()
{
    const std::lock_guard lock(m_mutex);
    return m_path;
}

bool WarningLog::Close()
{
    const std::lock_guard lock(m_mutex);
    for (const auto& [place, count] : m_counts)
    {
        if (count <= MaxLinesPerPlace)
            continue;
        WriteLine({{"file", place.first},
                   {"line", place.second},
                   {"time", GetNow()},
                   {"count", count},
                   {"suppressed", count - MaxLinesPerPlace}});
    }
    m_counts.clear();
    m_path.clear();
    const bool isClosed = m_file.Close();
    return !std::exchange(m_isLineMissing, false) && isClosed;
}

void WarningLog::Add(const std::string& file, int line, nlohmann::ordered_json record)
{
    const int count = CountUp({file, line});
    if (count > MaxLinesPerPlace)
        return;
    record["time"] = GetNow();
    record["count"] = count;
    record["journal"] = JournalManager::GetInstance().GetLastLines();
    const std::lock_guard lock(m_mutex);
    WriteLine(record);
}

int WarningLog::CountUp(const Place& place)
{
    const std::lock_guard lock(m_mutex);
    return ++m_counts[place];
}

void WarningLog::WriteLine(const nlohmann::ordered_json& record)
{
    const std::string line = ToLine(record);
    if (WriteToFile(line))
        return;
    m_isLineMissing = m_isLineMissing || m_file.IsOpen();
    std::fwrite(line.data(), 1, line.size(), stderr);
}

/// If the disk is full, part of a line may remain in the file; it is not removed because other
/// programs may have written after it. The next line then starts on a new line.
bool WarningLog::WriteToFile(const std::string& line)
{
    if (!m_file.IsOpen())
        return false;
    const std::string text = m_isTorn ? '\n' + line : line;
    const std::size_t written = m_file.Write(text);
    if (written > 0)
        m_isTorn = text[written - 1] != '\n';
    return written == text.size();
}

}
