#include "tessaly/images/CellAllocator.h"

#include <cstdlib>
#include <sys/mman.h>

namespace Tessaly {

namespace {

constexpr std::size_t LargePage = std::size_t(2) << 20;

} // namespace

void* allocateCells(std::size_t bytes)
{
    if (bytes < 2 * LargePage) {
        void* cells = std::malloc(bytes ? bytes : 1);
        if (!cells)
            throw std::bad_alloc();
        return cells;
    }
    const std::size_t rounded = (bytes + LargePage - 1) / LargePage * LargePage;
    void* cells = std::aligned_alloc(LargePage, rounded);
    if (!cells)
        throw std::bad_alloc();
    // Only advice: where large pages are off, the memory works as usual.
    madvise(cells, rounded, MADV_HUGEPAGE);
    return cells;
}

void freeCells(void* cells) { std::free(cells); }

} // namespace Tessaly
