#pragma once

#include <atomic>
#include <cstddef>

namespace vesk
{

/// The number of allocations that the process has made so far. Allocated memory is filled with a
/// non-zero pattern, so that uninitialised values show.
class AllocationCounter
{
public:
    static inline std::atomic<std::size_t> s_count = 0;
};

}
