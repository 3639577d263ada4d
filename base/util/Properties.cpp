#include "base/util/Properties.h"

#include <algorithm>

namespace VRK {

namespace {
template <class Entries>
auto findEntry(Entries& entries, const std::string& name)
{
    return std::find_if(entries.begin(), entries.end(),
                        [&](const auto& entry) { return entry.first == name; });
}
} // namespace

void Properties::setProperty(const std::string& name, const std::string& value, bool overwrite)
{
    auto entry = findEntry(entries_, name);
    if (entry == entries_.end())
        entries_.emplace_back(name, value);
    else if (overwrite)
        entry->second = value;
}

bool Properties::hasProperty(const std::string& name) const
{
    return findEntry(entries_, name) != entries_.end();
}

std::string Properties::getPropertyValue(const std::string& name) const
{
    auto entry = findEntry(entries_, name);
    return entry == entries_.end() ? std::string() : entry->second;
}

} // namespace VRK
