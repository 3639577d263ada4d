#ifndef VRK_PLUGINS_PRIM_FILES_FOLDERVIEWER_H
#define VRK_PLUGINS_PRIM_FILES_FOLDERVIEWER_H

#include "plugins/prim/files/FilenameViewer.h"

namespace Prim {

// Inspects folders.
class FolderViewer : public FilenameViewer {
public:
    FolderViewer();
    FolderViewer(const FolderViewer&) = default;
    FolderViewer& operator=(const FolderViewer&) = default;
    ~FolderViewer() override;
};

} // namespace Prim

#endif
