#ifndef VRK_TESSALY_RASTER_MEMORYBUDGET_H
#define VRK_TESSALY_RASTER_MEMORYBUDGET_H

#include <atomic>
#include <cstddef>

namespace Tessaly {

// The memory that maps may hold whole, for the whole process: a map that fits in what
// is left is kept in memory, one that does not goes to a temporary file and is read
// back by strips. The strips under calculation and the raster library's block cache
// are not counted.
class MemoryBudget {
public:
    static MemoryBudget& getInstance();

    void setLimit(std::size_t bytes);
    std::size_t getLimit() const { return limit_.load(); }
    // Takes `bytes` when they fit in what is left and says whether it did.
    bool reserve(std::size_t bytes);
    void release(std::size_t bytes);

    // Half the physical memory: room for the maps, and for the strips, the library and
    // the rest of the process beside them.
    static std::size_t getDefaultLimit();

private:
    MemoryBudget();

    std::atomic<std::size_t> limit_;
    std::atomic<std::size_t> used_{0};
};

} // namespace Tessaly

#endif
