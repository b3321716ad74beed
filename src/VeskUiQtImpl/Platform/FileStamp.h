#pragma once

#include <QString>

#include <cstdint>
#include <filesystem>

namespace vesk
{

/// By which a change of a file is noticed: two of the same file differ if it was written between.
struct FileStamp
{
    bool exists = false;
    std::int64_t time = 0; ///< When it was last written, in the unit of the operating system.
    std::uint64_t size = 0;

    bool operator==(const FileStamp& other) const
    {
        return exists == other.exists && time == other.time && size == other.size;
    }
};

/// The name of a file as the operating system takes it.
using NativePath = std::filesystem::path::string_type;

/// The name by which Qt opens that file.
NativePath ToNativePath(const QString& path);

/// Looks at a file once and allocates nothing. What cannot be looked at does not exist.
FileStamp ReadFileStamp(const NativePath& file);

}
