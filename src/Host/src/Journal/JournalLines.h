#pragma once

#include "Platform/OutputFile.h"

#include <cstdint>
#include <filesystem>
#include <string>

namespace vesk
{

/// Writes the lines of a journal to its file.
///
/// Lines that cannot be written are queued here and written with the next line that can be: the
/// file always contains the first lines, complete and without gaps.
class JournalLines
{
public:
    /// Creates or empties the file. If it cannot be written or another program has it open, returns
    /// false, changes nothing, and `error` says so.
    bool Replace(const std::string& path, std::string& error);

    /// Locks the file without changing it; lines are queued. Fails like Replace.
    bool Reserve(const std::string& path, std::string& error);

    /// The queued lines are already in the reserved file: they are dropped, and further lines are
    /// written after its last complete line.
    void Continue();

    /// Releases the file and writes the first line and the queued ones to another. If that cannot
    /// be written, returns false and no file is open.
    bool MoveTo(const std::string& path, const std::string& firstLine, std::string& error);

    /// True if another program has the file locked.
    bool IsInUse(const std::string& path) const;

    /// Sets whether lines are on disk when Add returns.
    void SetSynced(bool isSynced) { m_isSynced = isSynced; }

    /// Adds a line, including its terminator.
    void Add(const std::string& line);

    /// False without a file, and while lines are missing from it or, if asked for, from the disk.
    bool IsKept() const
    {
        return m_file.IsOpen() && (m_isReserved || (m_waiting.empty() && m_isOnDisk));
    }

    /// Makes a last attempt to write the queued lines and closes the file. False if lines are
    /// missing from it.
    bool Close();

private:
    bool IsOwn(const std::filesystem::path& path) const;
    bool Open(const std::string& path, OutputFile& file, std::string& error) const;
    void Take(OutputFile file, const std::string& path, std::uint64_t size);
    bool Finish();
    void WriteWaiting();

    OutputFile m_file;
    std::filesystem::path m_path;

    /// Where the file's last complete line ends.
    std::uint64_t m_size = 0;

    /// True if the file is known to end there. Nobody else writes to it, so it need not be asked
    /// before each line.
    bool m_endsWithLine = false;

    /// The queued lines, which are not in the file yet.
    std::string m_waiting;
    bool m_isReserved = false;
    bool m_isSynced = false;

    /// False if lines should be on disk and may not be.
    bool m_isOnDisk = true;
};

}
