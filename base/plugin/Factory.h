#ifndef VRK_BASE_PLUGIN_FACTORY_H
#define VRK_BASE_PLUGIN_FACTORY_H

#include "base/error/ExceptionUtils.h"

#include <mutex>
#include <sstream>
#include <string>
#include <unordered_map>
#include <vector>

namespace VRK {

// Creates products by registered key or alias. Entries keep their registration order,
// their group (the palette category) and their aliases.
template <class Product, class Key, class Group, class Creator, class Error>
class Factory {
public:
    struct Entry {
        Group group;
        Key key;
        Creator creator;
        std::vector<Key> aliases;
    };

    // False when the key or an alias is taken already; then nothing is registered.
    bool register_(const Group& group, const Key& key, Creator creator,
                   const std::vector<Key>& aliases = {})
    {
        std::lock_guard<std::mutex> lock(mutex_);
        if (index_.count(key))
            return false;
        for (const auto& alias : aliases)
            if (index_.count(alias) || alias == key)
                return false;
        index_[key] = entries_.size();
        for (const auto& alias : aliases)
            index_[alias] = entries_.size();
        entries_.push_back(Entry{group, key, creator, aliases});
        return true;
    }

    bool isRegistered(const Key& keyOrAlias) const
    {
        std::lock_guard<std::mutex> lock(mutex_);
        return index_.count(keyOrAlias) != 0;
    }

    // The registered key behind a key or an alias.
    Key resolve(const Key& keyOrAlias) const
    {
        std::lock_guard<std::mutex> lock(mutex_);
        return entry(keyOrAlias).key;
    }

    // The creator of a key or an alias, none when it is not registered: for callers
    // that make many products of a few keys and keep the creators they found.
    Creator findCreator(const Key& keyOrAlias) const
    {
        std::lock_guard<std::mutex> lock(mutex_);
        auto found = index_.find(keyOrAlias);
        return found == index_.end() ? Creator() : entries_[found->second].creator;
    }
    template <class... Args>
    Product create(const Key& keyOrAlias, Args&&... args) const
    {
        Creator creator;
        {
            std::lock_guard<std::mutex> lock(mutex_);
            creator = entry(keyOrAlias).creator;
        }
        return creator(std::forward<Args>(args)...);
    }

    std::vector<Entry> getEntries() const
    {
        std::lock_guard<std::mutex> lock(mutex_);
        return entries_;
    }

private:
    // Under the lock. Products are created once per functor and per value read, so only
    // the part asked for is copied out, not the whole entry with its aliases.
    const Entry& entry(const Key& keyOrAlias) const
    {
        auto found = index_.find(keyOrAlias);
        if (found == index_.end()) {
            std::ostringstream message;
            message << "\"" << keyOrAlias << "\" is not registered.";
            ExceptionUtils::raise<Error>(message.str());
        }
        return entries_[found->second];
    }

    mutable std::mutex mutex_;
    std::vector<Entry> entries_;
    // Searched for every functor made and every value read: a hash table rather than a
    // tree, whose every step compares two names.
    std::unordered_map<Key, size_t> index_;
};

} // namespace VRK

#endif
