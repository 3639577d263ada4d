#ifndef VRK_BASE_SCRIPT_SCRIPTALIASTABLE_H
#define VRK_BASE_SCRIPT_SCRIPTALIASTABLE_H

#include "base/util/ScriptPosition.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace VRK {

class Functor;

// The aliases of a script being read, each naming the functor it was given to. A
// reader looks an alias up for every binding. The entries lie side by side in the order
// they came, and a compact index of 8 bytes a slot is probed in place: one node per
// alias, scattered among the functors, missed the cache at every look-up of a large
// script.
class ScriptAliasTable {
public:
    struct Entry {
        std::string alias;
        Functor* functor = nullptr;
        ScriptPosition position;
    };

    // Adds `alias` for `functor`; when the alias is taken, adds nothing and returns the
    // entry that holds it. An entry returned stays valid up to the next insertion.
    const Entry* insert(const std::string& alias, Functor& functor, const ScriptPosition& position);
    // None when no functor has `alias`.
    const Entry* find(const std::string& alias) const;

private:
    struct Slot {
        // Part of the alias's hash, so that most probes compare no text.
        uint32_t tag = 0;
        // 1 + the entry's index; 0 for an empty slot.
        uint32_t entry = 0;
    };

    size_t slotOf(const std::string& alias, size_t hash) const;
    void grow();

    std::vector<Slot> slots_;
    std::vector<Entry> entries_;
};

} // namespace VRK

#endif
