#ifndef VRK_PLUGINS_PRIM_FILES_FOLDERDATA_H
#define VRK_PLUGINS_PRIM_FILES_FOLDERDATA_H

#include "base/data/Data.h"
#include "plugins/prim/files/CompoundFilename.h"
#include "plugins/prim/files/FilenameData.h"
#include "plugins/prim/files/FolderEditor.h"
#include "plugins/prim/files/FolderViewer.h"

namespace Prim {

// A folder, held as a compound filename.
class FolderData : public VRK::Data<CompoundFilename, FolderViewer, FolderEditor>,
                   public FilenameData {
public:
    FolderData() = default;
    explicit FolderData(const CompoundFilename& folder);
    FolderData(const FolderData&) = default;
    ~FolderData() override;

    const CompoundFilename& getCompoundFilename() const override { return getValue(); }
};

} // namespace Prim

#endif
