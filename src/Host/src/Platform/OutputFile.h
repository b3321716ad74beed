#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string_view>

namespace vesk
{

/// A file that is written at its end, with nothing buffered. Closed with the object.
class OutputFile
{
public:
    enum class Opening
    {
        Done,
        Failed,
        InUse, ///< Another program has it alone.
    };

    OutputFile() = default;
    ~OutputFile() { Close(); }
    OutputFile(OutputFile&& other) noexcept;
    OutputFile& operator=(OutputFile&& other) noexcept;

    /// Opens a file to have it alone, and makes it where it is missing; what stands in it stays.
    /// Its lock ends with the object or the process, however that ends. Where the file system knows
    /// no locks, the file is opened all the same.
    Opening OpenAlone(const std::filesystem::path& path);

    /// Opens a file that others may write, too, and makes it where it is missing.
    bool OpenShared(const std::filesystem::path& path);

    /// Makes a file that nobody has. False when there is one of that name.
    bool Create(const std::filesystem::path& path);

    bool IsOpen() const { return m_handle != NoHandle; }

    /// How many bytes were written; fewer than all when the rest cannot be.
    std::size_t Write(std::string_view bytes);

    /// Cuts the file where it is longer. False when it cannot be.
    bool CutTo(std::uint64_t size);

    /// Waits until everything is on the disk. False when it cannot get there.
    bool Sync();

    /// False when what was written did not get to its place. A file that is not open is closed.
    bool Close();

private:
    static constexpr std::intptr_t NoHandle = -1;

    std::intptr_t m_handle = NoHandle;
};

}
