#pragma once

#include "Platform/OutputFile.h"

#include <cstdint>
#include <filesystem>
#include <string>

namespace vesk
{

/// The lines of a journal on their way into its file.
///
/// What the file cannot take waits here and goes there with the next line that it can take: the
/// file always holds the first lines as a whole, and no others.
class JournalLines
{
public:
    /// Makes the file anew, or empties it. False, and nothing changes, when it cannot be written or
    /// another program has it; `error` then says so.
    bool Replace(const std::string& path, std::string& error);

    /// Has the file alone and leaves it as it is; lines wait. False as with Replace.
    bool Reserve(const std::string& path, std::string& error);

    /// The lines that wait stand in the reserved file: they are dropped, and the next go behind its
    /// last whole line.
    void Continue();

    /// Lets go of the file and writes the lines that wait to another. False, and without a file,
    /// when that cannot be written.
    bool MoveTo(const std::string& path, std::string& error);

    /// Takes a line, its line end included.
    void Add(const std::string& line);

    /// False without a file, and while lines are missing in it.
    bool IsKept() const { return m_file.IsOpen() && (m_isReserved || m_waiting.empty()); }

    /// Tries a last time, and closes the file. False when lines are missing in it.
    bool Close();

private:
    bool Open(const std::string& path, OutputFile& file, std::string& error) const;
    void Take(OutputFile file, const std::string& path, std::uint64_t size);
    bool Finish();
    void WriteWaiting();

    OutputFile m_file;
    std::filesystem::path m_path;

    /// Where the file's last whole line ends.
    std::uint64_t m_size = 0;

    /// The lines that are not in the file yet.
    std::string m_waiting;
    bool m_isReserved = false;
};

}
