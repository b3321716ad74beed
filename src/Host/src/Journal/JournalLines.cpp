#include "Journal/JournalLines.h"

#include <cstddef>
#include <fstream>
#include <string_view>
#include <system_error>
#include <utility>

namespace vesk
{

namespace
{

/// Where the last complete line of a file ends.
std::uint64_t EndOfLines(const std::filesystem::path& path)
{
    std::ifstream stream(path, std::ios::binary);
    std::string line;
    std::uint64_t end = 0;
    while (std::getline(stream, line) && !stream.eof())
        end += line.size() + 1;
    return end;
}

}

bool JournalLines::Replace(const std::string& path, std::string& error)
{
    const bool isOwn = IsOwn(std::filesystem::u8path(path));
    OutputFile file;
    if (!isOwn && !Open(path, file, error))
        return false;
    if (!(isOwn ? m_file : file).CutTo(0))
    {
        error = path + " cannot be written";
        return false;
    }
    Take(isOwn ? std::move(m_file) : std::move(file), path, 0);
    return true;
}

bool JournalLines::Reserve(const std::string& path, std::string& error)
{
    OutputFile file;
    if (!Open(path, file, error))
        return false;
    // Determined now: later the path may refer to another file.
    Take(std::move(file), path, EndOfLines(std::filesystem::u8path(path)));
    m_isReserved = true;
    return true;
}

void JournalLines::Continue()
{
    m_waiting.clear();
    m_isReserved = false;
}

bool JournalLines::MoveTo(const std::string& path, const std::string& firstLine, std::string& error)
{
    const std::string kept = std::move(m_waiting);
    Close();
    if (!Replace(path, error))
        return false;
    m_waiting = firstLine + kept;
    WriteWaiting();
    return true;
}

bool JournalLines::IsInUse(const std::string& path) const
{
    const std::filesystem::path asked = std::filesystem::u8path(path);
    return !IsOwn(asked) && OutputFile::IsInUse(asked);
}

void JournalLines::Add(const std::string& line)
{
    if (!m_file.IsOpen())
        return;
    m_waiting += line;
    if (!m_isReserved)
        WriteWaiting();
}

bool JournalLines::Close()
{
    const bool isKept = !m_file.IsOpen() || Finish();
    m_waiting.clear();
    m_isReserved = false;
    return m_file.Close() && isKept;
}

bool JournalLines::IsOwn(const std::filesystem::path& path) const
{
    std::error_code unknown;
    return m_file.IsOpen() && std::filesystem::equivalent(path, m_path, unknown);
}

/// Opens a file and locks it for this program.
bool JournalLines::Open(const std::string& path, OutputFile& file, std::string& error) const
{
    switch (file.OpenAlone(std::filesystem::u8path(path)))
    {
    case OutputFile::Opening::Done:
        return true;
    case OutputFile::Opening::InUse:
        error = path + " is in use by another program";
        return false;
    default:
        error = path + " cannot be written";
        return false;
    }
}

void JournalLines::Take(OutputFile file, const std::string& path, std::uint64_t size)
{
    Close();
    m_file = std::move(file);
    m_path = std::filesystem::u8path(path);
    m_size = size;
    m_endsWithLine = false;
    m_isOnDisk = true;
}

/// Writes everything to disk. False if lines are missing there.
bool JournalLines::Finish()
{
    if (!m_isReserved)
        WriteWaiting();
    return m_file.Sync() && IsKept();
}

/// Writes the queued lines after the last complete line, in one write. If not all can be written,
/// the complete lines are kept.
void JournalLines::WriteWaiting()
{
    if (m_waiting.empty())
        return;
    m_endsWithLine = m_endsWithLine || m_file.CutTo(m_size);
    if (!m_endsWithLine)
        return;
    const std::size_t written = m_file.Write(m_waiting);
    const std::size_t lastEnd = std::string_view(m_waiting).substr(0, written).rfind('\n');
    const std::size_t whole = lastEnd == std::string_view::npos ? 0 : lastEnd + 1;
    m_size += whole;
    m_waiting.erase(0, whole);
    m_endsWithLine = m_waiting.empty() || m_file.CutTo(m_size);
    if (m_isSynced)
        m_isOnDisk = m_file.SyncData();
}

}
