#pragma once

// Replaces the allocation functions of the program: include it in one source file only.

#include <cstddef>
#include <cstdlib>
#include <new>

namespace vesk
{

/// How many allocations the process has made so far.
class AllocationCounter
{
public:
    static inline std::size_t s_count = 0;
};

}

[[gnu::noinline]] void* operator new(std::size_t size)
{
    ++vesk::AllocationCounter::s_count;
    if (void* const pMemory = std::malloc(size > 0 ? size : 1))
        return pMemory;
    throw std::bad_alloc();
}

[[gnu::noinline]] void operator delete(void* pMemory) noexcept
{
    std::free(pMemory);
}

[[gnu::noinline]] void operator delete(void* pMemory, std::size_t /*size*/) noexcept
{
    std::free(pMemory);
}
