#include "base/data/DataPool.h"

#include <new>

namespace VRK {

namespace {

// Blocks are kept by size, in steps of the allocator's alignment; larger ones, and any
// beyond a bound per size (a thread that frees what others make would gather them
// without end), go back at once.
constexpr std::size_t Step = alignof(std::max_align_t);
constexpr std::size_t Sizes = 16;
constexpr unsigned KeptPerSize = 64;

struct FreeBlock {
    FreeBlock* next;
};

struct FreeLists {
    FreeBlock* heads[Sizes] = {};
    unsigned counts[Sizes] = {};

    // Data freed later in the thread's exit (by other thread-local objects) go back
    // at once.
    ~FreeLists()
    {
        for (std::size_t index = 0; index < Sizes; ++index) {
            while (FreeBlock* block = heads[index]) {
                heads[index] = block->next;
                ::operator delete(block);
            }
            counts[index] = KeptPerSize;
        }
    }
};

thread_local FreeLists freeLists;

// The list for blocks of `bytes`; Sizes for blocks too large to keep.
std::size_t sizeIndex(std::size_t bytes) { return (bytes + Step - 1) / Step - 1; }

} // namespace

void* DataPool::allocate(std::size_t bytes)
{
    const std::size_t index = sizeIndex(bytes);
    if (index >= Sizes)
        return ::operator new(bytes);
    FreeLists& lists = freeLists;
    if (FreeBlock* block = lists.heads[index]) {
        lists.heads[index] = block->next;
        --lists.counts[index];
        return block;
    }
    return ::operator new((index + 1) * Step);
}

void DataPool::deallocate(void* block, std::size_t bytes) noexcept
{
    const std::size_t index = sizeIndex(bytes);
    FreeLists& lists = freeLists;
    if (index >= Sizes || lists.counts[index] >= KeptPerSize) {
        ::operator delete(block);
        return;
    }
    lists.heads[index] = new (block) FreeBlock{lists.heads[index]};
    ++lists.counts[index];
}

} // namespace VRK
