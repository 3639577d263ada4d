#ifndef VRK_PLUGINS_PRIM_VALUES_NUMBERS_NONNEGATIVEINTVIEWER_H
#define VRK_PLUGINS_PRIM_VALUES_NUMBERS_NONNEGATIVEINTVIEWER_H

#include "base/data/DataViewer.h"

namespace Prim {

// Inspects non-negative integer values.
class NonNegativeIntViewer : public VRK::DataViewer {
public:
    NonNegativeIntViewer();
    NonNegativeIntViewer(const NonNegativeIntViewer&) = default;
    NonNegativeIntViewer& operator=(const NonNegativeIntViewer&) = default;
    ~NonNegativeIntViewer() override;

    int getNonNegativeInt() const;
};

} // namespace Prim

#endif
