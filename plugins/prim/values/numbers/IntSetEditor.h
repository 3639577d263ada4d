#ifndef VRK_PLUGINS_PRIM_VALUES_NUMBERS_INTSETEDITOR_H
#define VRK_PLUGINS_PRIM_VALUES_NUMBERS_INTSETEDITOR_H

#include "base/data/DataEditor.h"

#include <cstddef>
#include <set>

namespace Prim {

// Builds ordered sets of integers, without duplicates.
class IntSetEditor : public VRK::DataEditor {
public:
    IntSetEditor();
    IntSetEditor(const IntSetEditor&) = default;
    IntSetEditor& operator=(const IntSetEditor&) = default;
    ~IntSetEditor() override;

    void packData() override;
    void unpackData(const VRK::BaseData& data) override;

    // A value already present is ignored.
    void addInt(int value);
    // A value not present is ignored.
    void eraseInt(int value);
    void clear();

    size_t getIntCount() const { return values_.size(); }
    // The elements in ascending order, to walk them all without seeking each by index.
    const std::set<int>& getInts() const { return values_; }
    // The element at `index` in ascending order.
    int getInt(size_t index) const;

    // The element at `index` of `values` in ascending order; refuses an index past the end.
    static int elementAt(const std::set<int>& values, size_t index);

private:
    std::set<int> values_;
};

} // namespace Prim

#endif
