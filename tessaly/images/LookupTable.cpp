#include "tessaly/images/LookupTable.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <iterator>
#include <limits>

namespace Tessaly {

namespace {

const double Null = std::numeric_limits<double>::quiet_NaN();

} // namespace

LookupTable::ConstIterator::ConstIterator(const Entries& entries)
    : current_(entries.begin()), end_(entries.end())
{
}

std::pair<double, double> LookupTable::ConstIterator::next()
{
    assert(hasNext() && "hasNext()");
    return *current_++;
}

LookupTable::LookupTable(Entries entries) : entries_(std::move(entries)) {}

void LookupTable::setValue(double key, double value) { entries_[key] = value; }

bool LookupTable::hasKey(double key) const { return !std::isnan(key) && entries_.count(key) != 0; }

double LookupTable::getHasKey(double key) const
{
    return std::isnan(key) ? Null : hasKey(key) ? 1 : 0;
}

double LookupTable::valueAt(Entries::const_iterator at, Entries::const_iterator end)
{
    return at == end ? Null : at->second;
}

double LookupTable::valueBefore(Entries::const_iterator at) const
{
    return at == entries_.begin() ? Null : std::prev(at)->second;
}

double LookupTable::getValue(double key) const
{
    // A NaN key compares neither below nor above any key, so the map would take it for
    // its first key.
    return std::isnan(key) ? Null : valueAt(entries_.find(key), entries_.end());
}

double LookupTable::getEqualLowerBoundValue(double key) const
{
    return std::isnan(key) ? Null : valueBefore(entries_.upper_bound(key));
}

double LookupTable::getLowerBoundValue(double key) const
{
    return std::isnan(key) ? Null : valueBefore(entries_.lower_bound(key));
}

double LookupTable::getEqualUpperBoundValue(double key) const
{
    return std::isnan(key) ? Null : valueAt(entries_.lower_bound(key), entries_.end());
}

double LookupTable::getUpperBoundValue(double key) const
{
    return std::isnan(key) ? Null : valueAt(entries_.upper_bound(key), entries_.end());
}

double LookupTable::getClosestValue(double key) const
{
    if (std::isnan(key) || entries_.empty())
        return Null;
    const auto above = entries_.lower_bound(key);
    if (above == entries_.begin())
        return above->second;
    const auto below = std::prev(above);
    if (above == entries_.end() || key - below->first <= above->first - key)
        return below->second;
    return above->second;
}

double LookupTable::getInterpoledValue(double key) const
{
    if (std::isnan(key) || entries_.empty())
        return Null;
    const auto above = entries_.lower_bound(key);
    if (above == entries_.end())
        return std::prev(above)->second;
    if (above == entries_.begin() || above->first == key)
        return above->second;
    const auto below = std::prev(above);
    const double share = (key - below->first) / (above->first - below->first);
    return below->second + share * (above->second - below->second);
}

double LookupTable::getNamedValue(const std::string& name) const
{
    assert(isPredefinedKeyName(name) && "isPredefinedKeyName(name)");
    if (name == "count")
        return double(entries_.size());
    if (entries_.empty())
        return Null;
    if (name == "minkey")
        return entries_.begin()->first;
    if (name == "maxkey")
        return entries_.rbegin()->first;
    const auto byValue = [](const Entries::value_type& a, const Entries::value_type& b) {
        return a.second < b.second;
    };
    if (name == "min")
        return std::min_element(entries_.begin(), entries_.end(), byValue)->second;
    return std::max_element(entries_.begin(), entries_.end(), byValue)->second;
}

const std::vector<std::string>& LookupTable::getPredefinedKeyNames()
{
    static const std::vector<std::string> names = {"count", "max", "maxkey", "min", "minkey"};
    return names;
}

bool LookupTable::isPredefinedKeyName(const std::string& name)
{
    const auto& names = getPredefinedKeyNames();
    return std::find(names.begin(), names.end(), name) != names.end();
}

} // namespace Tessaly
