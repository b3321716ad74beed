#include "VeskUiQtImpl/Platform/FileStamp.h"

#include <QFile>

#include <sys/stat.h>

namespace vesk
{

NativePath ToNativePath(const QString& path)
{
    return QFile::encodeName(path).toStdString();
}

FileStamp ReadFileStamp(const NativePath& file)
{
    struct stat state = {};
    if (stat(file.c_str(), &state) != 0)
        return {};
    constexpr std::int64_t Nanoseconds = 1000000000;
    return {true, state.st_mtim.tv_sec * Nanoseconds + state.st_mtim.tv_nsec,
            static_cast<std::uint64_t>(state.st_size)};
}

}
