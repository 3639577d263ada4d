#ifndef VRK_PLUGINS_PRIM_VALUES_KEYWORDS_BOOLVIEWER_H
#define VRK_PLUGINS_PRIM_VALUES_KEYWORDS_BOOLVIEWER_H

#include "base/data/DataViewer.h"

namespace Prim {

// Inspects Bool values.
class BoolViewer : public VRK::DataViewer {
public:
    BoolViewer();
    BoolViewer(const BoolViewer&) = default;
    BoolViewer& operator=(const BoolViewer&) = default;
    ~BoolViewer() override;

    bool getBool() const;
};

} // namespace Prim

#endif
