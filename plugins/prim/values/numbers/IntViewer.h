#ifndef VRK_PLUGINS_PRIM_VALUES_NUMBERS_INTVIEWER_H
#define VRK_PLUGINS_PRIM_VALUES_NUMBERS_INTVIEWER_H

#include "base/data/DataViewer.h"

namespace Prim {

// Inspects integer values, of any of the integer types.
class IntViewer : public VRK::DataViewer {
public:
    IntViewer();
    IntViewer(const IntViewer&) = default;
    IntViewer& operator=(const IntViewer&) = default;
    ~IntViewer() override;

    int getInt() const;
};

} // namespace Prim

#endif
