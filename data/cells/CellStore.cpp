#include "data/cells/CellStore.h"

#ifdef __linux__
#include <sys/mman.h>
#else
#include <cstdlib>
#endif

namespace cellstorage {

namespace {
constexpr std::size_t hugePage = std::size_t{2} << 20;
}

#ifdef __linux__

void* allocate(std::size_t bytes)
{
    void* memory = mmap(nullptr, bytes, PROT_READ | PROT_WRITE,
                        MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (memory == MAP_FAILED) {
        throw std::bad_alloc();
    }
    if (bytes >= 2 * hugePage) {
        madvise(memory, bytes, MADV_HUGEPAGE);  // advice: without huge pages it only is slower
    }
    return memory;
}

void release(void* memory, std::size_t bytes) noexcept
{
    munmap(memory, bytes);
}

#else

void* allocate(std::size_t bytes)
{
    void* memory = std::calloc(bytes, 1);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    return memory;
}

void release(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

#endif

}  // namespace cellstorage
