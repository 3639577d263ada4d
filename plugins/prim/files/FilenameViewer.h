#ifndef VRK_PLUGINS_PRIM_FILES_FILENAMEVIEWER_H
#define VRK_PLUGINS_PRIM_FILES_FILENAMEVIEWER_H

#include "base/data/DataViewer.h"
#include "plugins/prim/files/CompoundFilename.h"

namespace Prim {

// Inspects filename data of any filename type.
class FilenameViewer : public VRK::DataViewer {
public:
    FilenameViewer(const FilenameViewer&) = default;
    FilenameViewer& operator=(const FilenameViewer&) = default;
    ~FilenameViewer() override;

    const CompoundFilename& getFilename() const;

protected:
    FilenameViewer(const std::string& name, const std::string& description,
                   const std::shared_ptr<VRK::BaseType>& type);
};

} // namespace Prim

#endif
