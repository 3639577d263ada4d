#ifndef VRK_TESSALY_IMAGES_CELLALLOCATOR_H
#define VRK_TESSALY_IMAGES_CELLALLOCATOR_H

#include <cstddef>
#include <new>
#include <utility>

namespace Tessaly {

// Allocates raster cells. A map of many megabytes gets memory aligned to, and marked
// for, large pages, and a freed one is kept a while for the next map of its size:
// touching a new result map page by page otherwise costs more than calculating it.
// Elements are left uninitialised unless a value is given, so that a raster that is
// about to be overwritten is not cleared first.
void* allocateCells(std::size_t bytes);
void freeCells(void* cells, std::size_t bytes);

template <class T>
struct CellAllocator {
    using value_type = T;

    CellAllocator() = default;
    template <class U>
    CellAllocator(const CellAllocator<U>&)
    {
    }

    T* allocate(std::size_t n) { return static_cast<T*>(allocateCells(n * sizeof(T))); }
    void deallocate(T* p, std::size_t n) { freeCells(p, n * sizeof(T)); }

    template <class U>
    void construct(U* p)
    {
        ::new (static_cast<void*>(p)) U;
    }
    template <class U, class... A>
    void construct(U* p, A&&... args)
    {
        ::new (static_cast<void*>(p)) U(std::forward<A>(args)...);
    }

    template <class U>
    bool operator==(const CellAllocator<U>&) const
    {
        return true;
    }
    template <class U>
    bool operator!=(const CellAllocator<U>&) const
    {
        return false;
    }
};

} // namespace Tessaly

#endif
