#include "tessaly/images/CellAllocator.h"

#include <cstdlib>
#include <deque>
#include <mutex>
#include <sys/mman.h>

namespace Tessaly {

namespace {

constexpr std::size_t LargePage = std::size_t(2) << 20;
// Freed large maps kept for the next map of the same size, at most this many and this
// many bytes: a model that computes a map per step reuses the memory of the step before,
// which is already mapped, instead of having the system clear new pages, and the memory
// kept does not grow with the number of steps.
constexpr std::size_t KeptBytes = std::size_t(256) << 20;
constexpr std::size_t KeptBlocks = 4;

struct Block {
    void* cells;
    std::size_t bytes;
};

class KeptBlockList {
public:
    void* take(std::size_t bytes)
    {
        std::lock_guard<std::mutex> lock(mutex_);
        for (auto block = blocks_.begin(); block != blocks_.end(); ++block)
            if (block->bytes == bytes) {
                void* cells = block->cells;
                kept_ -= bytes;
                blocks_.erase(block);
                return cells;
            }
        return nullptr;
    }

    void keep(void* cells, std::size_t bytes)
    {
        std::lock_guard<std::mutex> lock(mutex_);
        blocks_.push_back({cells, bytes});
        kept_ += bytes;
        while (kept_ > KeptBytes || blocks_.size() > KeptBlocks) {
            std::free(blocks_.front().cells);
            kept_ -= blocks_.front().bytes;
            blocks_.pop_front();
        }
    }

private:
    std::mutex mutex_;
    std::deque<Block> blocks_;
    std::size_t kept_ = 0;
};

// Never destroyed: a raster of static duration may be freed after every other static.
KeptBlockList& keptBlocks()
{
    static KeptBlockList* blocks = new KeptBlockList();
    return *blocks;
}

bool isLarge(std::size_t bytes) { return bytes >= 2 * LargePage; }

std::size_t roundedToPages(std::size_t bytes)
{
    return (bytes + LargePage - 1) / LargePage * LargePage;
}

} // namespace

void* allocateCells(std::size_t bytes)
{
    if (!isLarge(bytes)) {
        void* cells = std::malloc(bytes ? bytes : 1);
        if (!cells)
            throw std::bad_alloc();
        return cells;
    }
    const std::size_t rounded = roundedToPages(bytes);
    if (void* kept = keptBlocks().take(rounded))
        return kept;
    void* cells = std::aligned_alloc(LargePage, rounded);
    if (!cells)
        throw std::bad_alloc();
    // Only advice: where large pages are off, the memory works as usual.
    madvise(cells, rounded, MADV_HUGEPAGE);
    return cells;
}

void freeCells(void* cells, std::size_t bytes)
{
    if (cells && isLarge(bytes))
        keptBlocks().keep(cells, roundedToPages(bytes));
    else
        std::free(cells);
}

} // namespace Tessaly
