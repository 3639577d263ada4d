#include "base/script/ScriptAliasTable.h"

#include <functional>

namespace VRK {

namespace {
uint32_t tagOf(size_t hash) { return static_cast<uint32_t>(hash >> 32) | 1; }
} // namespace

const ScriptAliasTable::Entry* ScriptAliasTable::insert(const std::string& alias, Functor& functor,
                                                        const ScriptPosition& position)
{
    // At most half full, so that probes stay short.
    if (2 * (entries_.size() + 1) > slots_.size())
        grow();
    const size_t hash = std::hash<std::string>()(alias);
    Slot& slot = slots_[slotOf(alias, hash)];
    if (slot.entry)
        return &entries_[slot.entry - 1];
    entries_.push_back(Entry{alias, &functor, position});
    slot = Slot{tagOf(hash), static_cast<uint32_t>(entries_.size())};
    return nullptr;
}

const ScriptAliasTable::Entry* ScriptAliasTable::find(const std::string& alias) const
{
    if (slots_.empty())
        return nullptr;
    const Slot& slot = slots_[slotOf(alias, std::hash<std::string>()(alias))];
    return slot.entry ? &entries_[slot.entry - 1] : nullptr;
}

// The slot that holds `alias`, or the empty slot where it would go.
size_t ScriptAliasTable::slotOf(const std::string& alias, size_t hash) const
{
    const size_t mask = slots_.size() - 1;
    const uint32_t tag = tagOf(hash);
    size_t at = hash & mask;
    while (slots_[at].entry
           && (slots_[at].tag != tag || entries_[slots_[at].entry - 1].alias != alias))
        at = (at + 1) & mask;
    return at;
}

void ScriptAliasTable::grow()
{
    std::vector<Slot> old(slots_.empty() ? 64 : 2 * slots_.size());
    old.swap(slots_);
    const size_t mask = slots_.size() - 1;
    for (const Slot& slot : old) {
        if (!slot.entry)
            continue;
        size_t at = std::hash<std::string>()(entries_[slot.entry - 1].alias) & mask;
        while (slots_[at].entry)
            at = (at + 1) & mask;
        slots_[at] = slot;
    }
}

} // namespace VRK
