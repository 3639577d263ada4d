#ifndef VRK_PLUGINS_PRIM_VALUES_TEXTS_NAMEVIEWER_H
#define VRK_PLUGINS_PRIM_VALUES_TEXTS_NAMEVIEWER_H

#include "base/data/DataViewer.h"

#include <string>

namespace Prim {

// Inspects names.
class NameViewer : public VRK::DataViewer {
public:
    NameViewer();
    NameViewer(const NameViewer&) = default;
    NameViewer& operator=(const NameViewer&) = default;
    ~NameViewer() override;

    // The held name; the viewer's own name stays reachable as Descriptable::getName.
    const std::string& getName() const;
};

} // namespace Prim

#endif
