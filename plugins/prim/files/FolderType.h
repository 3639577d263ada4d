#ifndef VRK_PLUGINS_PRIM_FILES_FOLDERTYPE_H
#define VRK_PLUGINS_PRIM_FILES_FOLDERTYPE_H

#include "base/data/TypeShim.h"
#include "plugins/prim/files/FolderData.h"

namespace Prim {

class FolderType : public VRK::TypeShim<FolderType, FolderData> {
public:
    FolderType();
    ~FolderType() override;
};

} // namespace Prim

#endif
