#include "Host/AllocationCounter.h"

#include <cstdlib>
#include <cstring>
#include <new>

[[gnu::noinline]] void* operator new(std::size_t size)
{
    ++vesk::AllocationCounter::s_count;
    if (void* const pMemory = std::malloc(size > 0 ? size : 1))
        return std::memset(pMemory, 0xA5, size);
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
