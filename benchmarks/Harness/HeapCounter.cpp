#include "HeapCounter.h"

#include <malloc.h>

#include <cerrno>
#include <cstddef>

// The C library's own functions, under the names that it keeps for those who replace the others.
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* pBlock, std::size_t size);
void* __libc_memalign(std::size_t alignment, std::size_t size);
void __libc_free(void* pBlock);
}

namespace
{

thread_local long s_allocations = 0;
thread_local long s_bytes = 0;
thread_local long s_peak = 0;

long SizeOf(void* pBlock)
{
    return pBlock ? static_cast<long>(malloc_usable_size(pBlock)) : 0;
}

void* Counted(void* pBlock)
{
    ++s_allocations;
    s_bytes += SizeOf(pBlock);
    if (s_bytes > s_peak)
        s_peak = s_bytes;
    return pBlock;
}

}

long HeapCounter::Allocations()
{
    return s_allocations;
}

long HeapCounter::Bytes()
{
    return s_bytes;
}

long HeapCounter::PeakBytes()
{
    return s_peak;
}

void HeapCounter::ResetPeak()
{
    s_peak = s_bytes;
}

extern "C" {

void* malloc(std::size_t size)
{
    return Counted(__libc_malloc(size));
}

void* calloc(std::size_t count, std::size_t size)
{
    return Counted(__libc_calloc(count, size));
}

void* realloc(void* pBlock, std::size_t size)
{
    const long before = SizeOf(pBlock);
    void* pGrown = __libc_realloc(pBlock, size);
    if (pGrown || size == 0)
        s_bytes -= before;
    return pGrown ? Counted(pGrown) : nullptr;
}

void* memalign(std::size_t alignment, std::size_t size)
{
    return Counted(__libc_memalign(alignment, size));
}

void* aligned_alloc(std::size_t alignment, std::size_t size)
{
    return Counted(__libc_memalign(alignment, size));
}

int posix_memalign(void** ppBlock, std::size_t alignment, std::size_t size)
{
    void* pBlock = Counted(__libc_memalign(alignment, size));
    if (!pBlock)
        return ENOMEM;
    *ppBlock = pBlock;
    return 0;
}

void free(void* pBlock)
{
    s_bytes -= SizeOf(pBlock);
    __libc_free(pBlock);
}
}
