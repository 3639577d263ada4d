#include "base/util/Descriptable.h"

#include <cstdint>
#include <cstring>
#include <memory>
#include <mutex>
#include <unordered_map>

namespace VRK {

namespace {

// Texts kept for the program's lifetime, so that objects may point at them, even
// objects that static destructors destroy last. Their number is that of the distinct
// descriptions the plugins give, not of the objects.
const std::string* intern(std::string_view text)
{
    static std::mutex mutex;
    static auto* texts = new std::unordered_map<std::string_view, std::unique_ptr<std::string>>;
    std::lock_guard<std::mutex> lock(mutex);
    auto found = texts->find(text);
    if (found != texts->end())
        return found->second.get();
    auto kept = std::make_unique<std::string>(text);
    const std::string* result = kept.get();
    texts->emplace(*result, std::move(kept));
    return result;
}

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
    slot = Slot{text.data(), intern(text)};
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
