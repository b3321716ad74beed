#include "VeskUiQtImpl/Platform/FileStamp.h"

#include <windows.h>

namespace vesk
{
namespace
{

std::uint64_t Joined(DWORD high, DWORD low)
{
    return std::uint64_t(high) << 32 | low;
}

}

NativePath ToNativePath(const QString& path)
{
    return path.toStdWString();
}

FileStamp ReadFileStamp(const NativePath& file)
{
    WIN32_FILE_ATTRIBUTE_DATA data = {};
    if (!GetFileAttributesExW(file.c_str(), GetFileExInfoStandard, &data))
        return {};
    const FILETIME& written = data.ftLastWriteTime;
    return {true, static_cast<std::int64_t>(Joined(written.dwHighDateTime, written.dwLowDateTime)),
            Joined(data.nFileSizeHigh, data.nFileSizeLow)};
}

}
