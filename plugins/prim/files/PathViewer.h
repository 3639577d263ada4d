#ifndef VRK_PLUGINS_PRIM_FILES_PATHVIEWER_H
#define VRK_PLUGINS_PRIM_FILES_PATHVIEWER_H

#include "base/data/DataViewer.h"

#include <boost/filesystem/path.hpp>

namespace Prim {

// Inspects file paths.
class PathViewer : public VRK::DataViewer {
public:
    PathViewer();
    PathViewer(const PathViewer&) = default;
    PathViewer& operator=(const PathViewer&) = default;
    ~PathViewer() override;

    const boost::filesystem::path& getPath() const;
};

} // namespace Prim

#endif
