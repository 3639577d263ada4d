#ifndef VRK_PLUGINS_PRIM_VALUES_NUMBERS_PERCENTVIEWER_H
#define VRK_PLUGINS_PRIM_VALUES_NUMBERS_PERCENTVIEWER_H

#include "base/data/DataViewer.h"

namespace Prim {

// Inspects percentual values, as the fraction 0..1.
class PercentViewer : public VRK::DataViewer {
public:
    PercentViewer();
    PercentViewer(const PercentViewer&) = default;
    PercentViewer& operator=(const PercentViewer&) = default;
    ~PercentViewer() override;

    double getPercent() const;
};

} // namespace Prim

#endif
