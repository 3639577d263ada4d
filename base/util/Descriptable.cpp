#include "base/util/Descriptable.h"

#include "base/util/InternedText.h"

#include <cstdint>
#include <cstring>
#include <memory>

namespace VRK {

namespace {

// Most descriptions are literals, met again and again at the same address: a small
// cache per thread, by address, answers those without the lock. The text is compared
// all the same, since another text may come to lie at an address seen before. The cache
// lies on the heap: this library's thread-local storage is taken from the small static
// reserve that a library opened after start (by an interpreter) must fit in.
const std::string* internCached(std::string_view text)
{
    struct Slot {
        const char* address = nullptr;
        const std::string* interned = nullptr;
    };
    constexpr std::size_t SlotCount = 64;
    thread_local std::unique_ptr<Slot[]> slots(new Slot[SlotCount]);
    Slot& slot = slots[(reinterpret_cast<std::uintptr_t>(text.data()) >> 3) % SlotCount];
    if (slot.address == text.data() && slot.interned->size() == text.size()
        && std::memcmp(slot.interned->data(), text.data(), text.size()) == 0)
        return slot.interned;
    slot = Slot{text.data(), InternedText::of(text)};
    return slot.interned;
}

} // namespace

Descriptable::Descriptable(std::string_view name, std::string_view description)
    : name_(internCached(name)), description_(internCached(description))
{
}

bool Descriptable::hasBanner() const { return false; }

std::string Descriptable::getBanner() const { return std::string(); }

} // namespace VRK
