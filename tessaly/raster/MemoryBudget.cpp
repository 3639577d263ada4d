#include "tessaly/raster/MemoryBudget.h"

#include <cassert>

#include <unistd.h>

namespace Tessaly {

MemoryBudget::MemoryBudget() : limit_(getDefaultLimit()) {}

MemoryBudget& MemoryBudget::getInstance()
{
    static MemoryBudget budget;
    return budget;
}

void MemoryBudget::setLimit(std::size_t bytes) { limit_.store(bytes); }

bool MemoryBudget::reserve(std::size_t bytes)
{
    std::size_t used = used_.load();
    do {
        if (bytes > limit_.load() || used > limit_.load() - bytes)
            return false;
    } while (!used_.compare_exchange_weak(used, used + bytes));
    return true;
}

void MemoryBudget::release(std::size_t bytes)
{
    const std::size_t before = used_.fetch_sub(bytes);
    assert(before >= bytes && "release no more than was reserved");
    (void)before;
}

std::size_t MemoryBudget::getDefaultLimit()
{
    const long pages = ::sysconf(_SC_PHYS_PAGES);
    const long pageSize = ::sysconf(_SC_PAGE_SIZE);
    if (pages <= 0 || pageSize <= 0)
        return std::size_t(1) << 30;
    return std::size_t(pages) * std::size_t(pageSize) / 2;
}

} // namespace Tessaly
