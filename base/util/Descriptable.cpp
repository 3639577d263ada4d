#include "base/util/Descriptable.h"

#include "base/util/InternedText.h"

#include <cstdint>
#include <cstring>

namespace VRK {

namespace {

// Most descriptions are literals, met again and again at the same address: a small
// cache per thread, by address, answers those without the lock. The text is compared
// all the same, since another text may come to lie at an address seen before.
const std::string* internCached(std::string_view text)
{
    struct Slot {
        const char* address = nullptr;
        const std::string* interned = nullptr;
    };
    thread_local Slot slots[64];
    Slot& slot = slots[(reinterpret_cast<std::uintptr_t>(text.data()) >> 3) % 64];
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
