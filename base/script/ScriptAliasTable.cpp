#include "base/script/ScriptAliasTable.h"

#include <functional>
#include <utility>

namespace VRK {

const ScriptAliasTable::Entry* ScriptAliasTable::insert(const std::string& alias, Functor& functor,
                                                        const ScriptPosition& position)
{
    // At most half full, so that probes stay short.
    if (2 * (size_ + 1) > slots_.size())
        grow();
    const size_t hash = std::hash<std::string>()(alias);
    Slot& slot = slots_[slotOf(alias, hash)];
    if (slot.entry.functor)
        return &slot.entry;
    slot.hash = hash;
    slot.entry = Entry{alias, &functor, position};
    ++size_;
    return nullptr;
}

const ScriptAliasTable::Entry* ScriptAliasTable::find(const std::string& alias) const
{
    if (slots_.empty())
        return nullptr;
    const Slot& slot = slots_[slotOf(alias, std::hash<std::string>()(alias))];
    return slot.entry.functor ? &slot.entry : nullptr;
}

// The slot that holds `alias`, or the empty slot where it would go.
size_t ScriptAliasTable::slotOf(const std::string& alias, size_t hash) const
{
    const size_t mask = slots_.size() - 1;
    size_t at = hash & mask;
    while (slots_[at].entry.functor && (slots_[at].hash != hash || slots_[at].entry.alias != alias))
        at = (at + 1) & mask;
    return at;
}

void ScriptAliasTable::grow()
{
    std::vector<Slot> old(slots_.empty() ? 64 : 2 * slots_.size());
    old.swap(slots_);
    for (Slot& slot : old)
        if (slot.entry.functor)
            slots_[slotOf(slot.entry.alias, slot.hash)] = std::move(slot);
}

} // namespace VRK
