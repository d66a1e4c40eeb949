#include <benchmarks/HeapCounter.h>

#include <atomic>
#include <cerrno>
#include <cstddef>

#include <malloc.h>

#define EXPORTED __attribute__((visibility("default")))

// glibc's own functions, by the names under which it lets programs replace them.
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
void* __libc_memalign(std::size_t alignment, std::size_t size);
void __libc_free(void* block);
}

namespace Norvane { namespace Benchmarks {

namespace {

std::atomic<long> bytesInUse(0);

long sizeOf(void* block)
{
    return block ? static_cast<long>(malloc_usable_size(block) + sizeof(std::size_t)) : 0;
}

void* counted(void* block)
{
    bytesInUse.fetch_add(sizeOf(block), std::memory_order_relaxed);
    return block;
}

} // namespace

long heapBytes()
{
    return bytesInUse.load(std::memory_order_relaxed);
}

}} // namespace Norvane::Benchmarks

using namespace Norvane::Benchmarks;

extern "C" {

EXPORTED void* malloc(std::size_t size)
{
    return counted(__libc_malloc(size));
}

EXPORTED void* calloc(std::size_t count, std::size_t size)
{
    return counted(__libc_calloc(count, size));
}

EXPORTED void* realloc(void* block, std::size_t size)
{
    const long before = sizeOf(block);
    void* const moved = __libc_realloc(block, size);
    // Where there is no room the block stays; where none is wanted it is gone.
    if (moved || size == 0)
        bytesInUse.fetch_sub(before, std::memory_order_relaxed);
    return counted(moved);
}

EXPORTED void* memalign(std::size_t alignment, std::size_t size)
{
    return counted(__libc_memalign(alignment, size));
}

EXPORTED void* aligned_alloc(std::size_t alignment, std::size_t size)
{
    return counted(__libc_memalign(alignment, size));
}

EXPORTED int posix_memalign(void** block, std::size_t alignment, std::size_t size)
{
    *block = counted(__libc_memalign(alignment, size));
    return *block ? 0 : ENOMEM;
}

EXPORTED void free(void* block)
{
    bytesInUse.fetch_sub(sizeOf(block), std::memory_order_relaxed);
    __libc_free(block);
}

} // extern "C"
