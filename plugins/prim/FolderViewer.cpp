#include "plugins/prim/FolderViewer.h"

#include "plugins/prim/FolderType.h"

namespace Prim {

FolderViewer::FolderViewer()
    : FilenameViewer("FolderViewer", "Viewer for inspecting folders", FolderType::getInstance())
{
}

FolderViewer::~FolderViewer() = default;

} // namespace Prim
