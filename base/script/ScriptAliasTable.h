#ifndef VRK_BASE_SCRIPT_SCRIPTALIASTABLE_H
#define VRK_BASE_SCRIPT_SCRIPTALIASTABLE_H

#include "base/util/ScriptPosition.h"

#include <cstddef>
#include <string>
#include <vector>

namespace VRK {

class Functor;

// The aliases of a script being read, each naming the functor it was given to. A
// reader looks an alias up for every binding: the entries lie side by side in one
// array, probed in place, rather than one node each scattered among the functors,
// where every look-up of a large script missed the cache.
class ScriptAliasTable {
public:
    struct Entry {
        std::string alias;
        Functor* functor = nullptr;
        ScriptPosition position;
    };

    // Adds `alias` for `functor`; when the alias is taken, adds nothing and returns the
    // entry that holds it.
    const Entry* insert(const std::string& alias, Functor& functor, const ScriptPosition& position);
    // None when no functor has `alias`.
    const Entry* find(const std::string& alias) const;

private:
    struct Slot {
        size_t hash = 0;
        Entry entry;
    };

    size_t slotOf(const std::string& alias, size_t hash) const;
    void grow();

    std::vector<Slot> slots_;
    size_t size_ = 0;
};

} // namespace VRK

#endif
