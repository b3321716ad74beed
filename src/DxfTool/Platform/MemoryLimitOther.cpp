// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/MemoryLimit.h"

#include <sys/resource.h>

bool LimitMemory(std::size_t megabytes)
{
    constexpr rlim_t BytesPerMegabyte = 1024 * 1024;
    rlimit limit{};
    if (getrlimit(RLIMIT_AS, &limit) != 0)
        return false;
    limit.rlim_cur = megabytes * BytesPerMegabyte;
    return limit.rlim_cur <= limit.rlim_max && setrlimit(RLIMIT_AS, &limit) == 0;
}
