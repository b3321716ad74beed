#include "Foundation/WarningLog.h"

#include "Foundation/UtcTime.h"
#include "Journal/JournalManager.h"

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <string_view>

namespace vesk
{

namespace
{

constexpr int s_maxLinesPerPlace = 10;

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

/// The record in one line, also for readers to whom Unicode's line separators end a line.
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
    m_file.clear();
    m_file.open(std::filesystem::u8path(path), std::ios::app | std::ios::binary);
    return m_file.is_open();
}

void WarningLog::Close()
{
    const std::lock_guard lock(m_mutex);
    for (const auto& [place, count] : m_counts)
    {
        if (count <= s_maxLinesPerPlace)
            continue;
        WriteLine({{"file", place.first},
                   {"line", place.second},
                   {"time", GetNow()},
                   {"count", count},
                   {"suppressed", count - s_maxLinesPerPlace}});
    }
    m_counts.clear();
    m_file.close();
}

void WarningLog::Add(const std::string& file, int line, nlohmann::ordered_json record)
{
    const int count = CountUp({file, line});
    if (count > s_maxLinesPerPlace)
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
    if (m_file.is_open() && m_file.write(line.data(), static_cast<std::streamsize>(line.size())) &&
        m_file.flush())
        return;
    // A full disk: the next line tries the file again.
    m_file.clear();
    std::fwrite(line.data(), 1, line.size(), stderr);
}

}
