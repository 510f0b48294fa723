#pragma once

#include "data/CellValue.h"

#include <cstddef>
#include <limits>
#include <new>
#include <utility>
#include <vector>

/// Storage for large tables straight from the system: zeroed, committed only where it is touched,
/// and in huge pages where the system has them. Freed as it was got.
namespace cellstorage {
[[nodiscard]] void* allocate(std::size_t bytes);
void release(void* memory, std::size_t bytes) noexcept;
}  // namespace cellstorage

/// Lets a std::vector take over zeroed storage without writing it first, for elements whose default
/// value is all zero bytes: a CellValue is then alternative 0 with a null pointer. So a vector
/// sized by a header that promises too much costs nothing for the rows that never come.
template <typename T>
class ZeroedAllocator
{
public:
    using value_type = T;

    ZeroedAllocator() = default;
    template <typename U>
    ZeroedAllocator(const ZeroedAllocator<U>&) noexcept
    { }

    [[nodiscard]] T* allocate(std::size_t count)
    {
        if (count > std::numeric_limits<std::size_t>::max() / sizeof(T)) {
            throw std::bad_array_new_length();
        }
        return static_cast<T*>(cellstorage::allocate(count * sizeof(T)));
    }
    void deallocate(T* memory, std::size_t count) noexcept
    {
        cellstorage::release(memory, count * sizeof(T));
    }

    /// Default construction: the zeroed storage already is the default value.
    template <typename U>
    void construct(U*) noexcept
    { }
    template <typename U, typename... Arguments>
    void construct(U* place, Arguments&&... arguments)
    {
        ::new (static_cast<void*>(place)) U(std::forward<Arguments>(arguments)...);
    }

    friend bool operator==(const ZeroedAllocator&, const ZeroedAllocator&) { return true; }
};

using CellVector = std::vector<CellValue, ZeroedAllocator<CellValue>>;
