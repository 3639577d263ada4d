#include "base/script/TemporaryFileList.h"

#include <atomic>
#include <climits>
#include <cstring>
#include <unistd.h>

namespace VRK {

namespace {

enum SlotState { Free, Filling, Listed };

struct Slot {
    std::atomic<int> state{Free};
    char path[PATH_MAX];
};

constexpr int SlotCount = 16;
Slot slots[SlotCount];
static_assert(std::atomic<int>::is_always_lock_free, "a signal handler reads the slots");

} // namespace

TemporaryFileList::TemporaryFileList(const boost::filesystem::path& file) : slot_(-1)
{
    const std::string& name = file.native();
    if (name.size() >= PATH_MAX)
        return;
    for (int index = 0; index < SlotCount && slot_ < 0; ++index) {
        int free = Free;
        if (!slots[index].state.compare_exchange_strong(free, Filling))
            continue;
        std::memcpy(slots[index].path, name.c_str(), name.size() + 1);
        slots[index].state.store(Listed);
        slot_ = index;
    }
}

TemporaryFileList::~TemporaryFileList()
{
    if (slot_ >= 0)
        slots[slot_].state.store(Free);
}

void TemporaryFileList::removeAll() noexcept
{
    for (Slot& slot : slots)
        if (slot.state.load() == Listed)
            ::unlink(slot.path);
}

} // namespace VRK
