#ifndef VRK_PLUGINS_PRIM_VALUES_TEXTS_STRINGVIEWER_H
#define VRK_PLUGINS_PRIM_VALUES_TEXTS_STRINGVIEWER_H

#include "base/data/DataViewer.h"

#include <string>

namespace Prim {

// Inspects strings, names included.
class StringViewer : public VRK::DataViewer {
public:
    StringViewer();
    StringViewer(const StringViewer&) = default;
    StringViewer& operator=(const StringViewer&) = default;
    ~StringViewer() override;

    const std::string& getString() const;
};

} // namespace Prim

#endif
