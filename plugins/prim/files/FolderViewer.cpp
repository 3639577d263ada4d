#include "plugins/prim/files/FolderViewer.h"

#include "plugins/prim/files/FolderType.h"

namespace Prim {

FolderViewer::FolderViewer()
    : FilenameViewer("FolderViewer", "Viewer for inspecting folders", FolderType::getInstance())
{
}

FolderViewer::~FolderViewer() = default;

} // namespace Prim
