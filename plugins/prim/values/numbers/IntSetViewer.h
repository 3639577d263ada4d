#ifndef VRK_PLUGINS_PRIM_VALUES_NUMBERS_INTSETVIEWER_H
#define VRK_PLUGINS_PRIM_VALUES_NUMBERS_INTSETVIEWER_H

#include "base/data/DataViewer.h"

#include <cstddef>

namespace Prim {

// Inspects sets of integers.
class IntSetViewer : public VRK::DataViewer {
public:
    IntSetViewer();
    IntSetViewer(const IntSetViewer&) = default;
    IntSetViewer& operator=(const IntSetViewer&) = default;
    ~IntSetViewer() override;

    size_t getIntCount() const;
    // The element at `index` in ascending order.
    int getInt(size_t index) const;
};

} // namespace Prim

#endif
