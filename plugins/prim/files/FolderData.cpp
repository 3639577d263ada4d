#include "plugins/prim/files/FolderData.h"

namespace Prim {

FolderData::FolderData(const CompoundFilename& folder)
    : VRK::Data<CompoundFilename, FolderViewer, FolderEditor>(folder)
{
}

FolderData::~FolderData() = default;

} // namespace Prim
