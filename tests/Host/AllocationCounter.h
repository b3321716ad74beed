#pragma once

#include <atomic>
#include <cstddef>

namespace vesk
{

/// How many allocations the process has made so far. Its memory is filled: what nobody has set
/// shows, for it is not zero.
class AllocationCounter
{
public:
    static inline std::atomic<std::size_t> s_count = 0;
};

}
