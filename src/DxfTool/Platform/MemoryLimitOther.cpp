// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/MemoryLimit.h"

#include <sys/resource.h>
#include <unistd.h>

#include <fstream>

namespace
{

/// What is reserved by now, used or not; 0 if the system does not tell.
rlim_t ReservedBytes()
{
    std::ifstream usage("/proc/self/statm");
    rlim_t pages = 0;
    return usage >> pages ? pages * static_cast<rlim_t>(sysconf(_SC_PAGESIZE)) : 0;
}

}

bool LimitMemory(std::size_t megabytes)
{
    constexpr rlim_t BytesPerMegabyte = 1024 * 1024;
    rlimit limit{};
    if (getrlimit(RLIMIT_AS, &limit) != 0)
        return false;
    // Under a sanitizer far more is reserved from the start than any limit.
    limit.rlim_cur = ReservedBytes() + megabytes * BytesPerMegabyte;
    return limit.rlim_cur <= limit.rlim_max && setrlimit(RLIMIT_AS, &limit) == 0;
}
