#ifndef PRIM_FOLDERVIEWER_H
#define PRIM_FOLDERVIEWER_H

#include "plugins/prim/FilenameViewer.h"

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
