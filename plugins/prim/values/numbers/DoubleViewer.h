#ifndef VRK_PLUGINS_PRIM_VALUES_NUMBERS_DOUBLEVIEWER_H
#define VRK_PLUGINS_PRIM_VALUES_NUMBERS_DOUBLEVIEWER_H

#include "base/data/DataViewer.h"

namespace Prim {

// Inspects real values.
class DoubleViewer : public VRK::DataViewer {
public:
    DoubleViewer();
    DoubleViewer(const DoubleViewer&) = default;
    DoubleViewer& operator=(const DoubleViewer&) = default;
    ~DoubleViewer() override;

    double getDouble() const;
};

} // namespace Prim

#endif
