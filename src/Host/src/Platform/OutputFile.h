#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string_view>
#include <utility>

namespace vesk
{

/// A file that is appended to without buffering. Closed with the object.
class OutputFile
{
public:
    enum class Opening
    {
        Done,
        Failed,
        InUse, ///< Another program has it locked.
    };

    OutputFile() = default;
    ~OutputFile() { Close(); }
    OutputFile(OutputFile&& other) noexcept : m_handle(std::exchange(other.m_handle, NoHandle)) {}

    /// Closes the file that was open.
    OutputFile& operator=(OutputFile other) noexcept
    {
        std::swap(m_handle, other.m_handle);
        return *this;
    }

    /// Opens and locks a file, and creates it if it is missing; existing content is kept. The lock
    /// ends with the object or the process, however that ends. If the file system does not support
    /// locks, the file is opened without one.
    Opening OpenAlone(const std::filesystem::path& path);

    /// True if another program has the file open by OpenAlone. Changes nothing; false if the file
    /// is missing or that cannot be determined.
    static bool IsInUse(const std::filesystem::path& path);

    /// Opens a file that others may also write, and creates it if it is missing.
    bool OpenShared(const std::filesystem::path& path);

    /// Creates a new file. False if one of that name exists.
    bool Create(const std::filesystem::path& path);

    bool IsOpen() const { return m_handle != NoHandle; }

    /// Returns the number of bytes written; fewer than all if the rest cannot be written.
    std::size_t Write(std::string_view bytes);

    /// Truncates the file if it is longer. False if that fails.
    bool CutTo(std::uint64_t size);

    /// Waits until everything is on disk. False if that fails.
    bool Sync();

    /// The same for the content and its length alone, which takes less time.
    bool SyncData();

    /// False if what was written may not have reached the file. Returns true if no file is open.
    bool Close();

private:
    static constexpr std::intptr_t NoHandle = -1;

    std::intptr_t m_handle = NoHandle;
};

}
