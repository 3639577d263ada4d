#ifndef VRK_PLUGINS_PRIM_VALUES_NUMBERS_POSITIVEINTVIEWER_H
#define VRK_PLUGINS_PRIM_VALUES_NUMBERS_POSITIVEINTVIEWER_H

#include "base/data/DataViewer.h"

namespace Prim {

// Inspects positive integer values.
class PositiveIntViewer : public VRK::DataViewer {
public:
    PositiveIntViewer();
    PositiveIntViewer(const PositiveIntViewer&) = default;
    PositiveIntViewer& operator=(const PositiveIntViewer&) = default;
    ~PositiveIntViewer() override;

    int getPositiveInt() const;
};

} // namespace Prim

#endif
