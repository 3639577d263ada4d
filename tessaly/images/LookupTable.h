#ifndef VRK_TESSALY_IMAGES_LOOKUPTABLE_H
#define VRK_TESSALY_IMAGES_LOOKUPTABLE_H

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace Tessaly {

// An ordered table from keys to values. Every lookup that finds nothing gives NaN,
// the null of formulas, and so does a NaN key.
class LookupTable {
public:
    using Entries = std::map<double, double>;

    // Walks the entries in ascending key order.
    class ConstIterator {
    public:
        explicit ConstIterator(const Entries& entries);
        bool hasNext() const { return current_ != end_; }
        // The next (key, value) pair; only while hasNext().
        std::pair<double, double> next();

    private:
        Entries::const_iterator current_;
        Entries::const_iterator end_;
    };

    LookupTable() = default;
    explicit LookupTable(Entries entries);

    // Replaces the value of a key already present.
    void setValue(double key, double value);
    size_t size() const { return entries_.size(); }
    ConstIterator getIterator() const { return ConstIterator(entries_); }

    bool hasKey(double key) const;
    // hasKey as a formula's truth value: 1 or 0, null for a null key.
    double getHasKey(double key) const;
    double getValue(double key) const;
    // The value of the greatest key <= key (Equal...) or < key.
    double getEqualLowerBoundValue(double key) const;
    double getLowerBoundValue(double key) const;
    // The value of the smallest key >= key (Equal...) or > key.
    double getEqualUpperBoundValue(double key) const;
    double getUpperBoundValue(double key) const;
    // The value of the nearest key; of the smaller one when two are as near.
    double getClosestValue(double key) const;
    // Linear between the two keys around `key`; the end value beyond either end.
    double getInterpoledValue(double key) const;

    // "minkey", "maxkey": the smallest and greatest key; "min", "max": the smallest and
    // greatest value; "count": the number of entries. Null on an empty table but for
    // "count".
    double getNamedValue(const std::string& name) const;
    static const std::vector<std::string>& getPredefinedKeyNames();
    static bool isPredefinedKeyName(const std::string& name);

private:
    static double valueAt(Entries::const_iterator at, Entries::const_iterator end);
    double valueBefore(Entries::const_iterator at) const;

    Entries entries_;
};

} // namespace Tessaly

#endif
