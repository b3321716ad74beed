// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/MemoryLimit.h"

#include <windows.h>

bool LimitMemory(std::size_t megabytes)
{
    constexpr std::size_t BytesPerMegabyte = 1024 * 1024;
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits = {};
    limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_PROCESS_MEMORY;
    limits.ProcessMemoryLimit = megabytes * BytesPerMegabyte;
    // Never closed: the limit holds as long as the process lives.
    HANDLE job = CreateJobObjectW(nullptr, nullptr);
    return job != nullptr &&
           SetInformationJobObject(job, JobObjectExtendedLimitInformation, &limits,
                                   sizeof(limits)) != 0 &&
           AssignProcessToJobObject(job, GetCurrentProcess()) != 0;
}
