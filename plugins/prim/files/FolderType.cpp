#include "plugins/prim/files/FolderType.h"

namespace Prim {

FolderType::FolderType() : VRK::TypeShim<FolderType, FolderData>("Folder", "Folder") {}

FolderType::~FolderType() = default;

} // namespace Prim
