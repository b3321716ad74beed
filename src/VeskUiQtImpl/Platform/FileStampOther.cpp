#include "VeskUiQtImpl/Platform/FileStamp.h"

#include <sys/stat.h>

namespace vesk
{

FileStamp ReadFileStamp(const std::filesystem::path& file)
{
    struct stat state = {};
    if (stat(file.c_str(), &state) != 0)
        return {};
    constexpr std::int64_t Nanoseconds = 1000000000;
    return {true, state.st_mtim.tv_sec * Nanoseconds + state.st_mtim.tv_nsec,
            static_cast<std::uint64_t>(state.st_size)};
}

}
