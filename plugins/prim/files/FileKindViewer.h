#ifndef VRK_PLUGINS_PRIM_FILES_FILEKINDVIEWER_H
#define VRK_PLUGINS_PRIM_FILES_FILEKINDVIEWER_H

#include "plugins/prim/files/FilenameViewer.h"

#include <string>

namespace Prim {

// Inspects names of files of one kind (see FileKindData).
template <class KindT>
class FileKindViewer : public FilenameViewer {
protected:
    FileKindViewer();
};

template <class KindT>
FileKindViewer<KindT>::FileKindViewer()
    : FilenameViewer(std::string(KindT::name) + "Viewer",
                     std::string("Viewer for inspecting ") + KindT::word + " names",
                     KindT::Type::getInstance())
{
}

} // namespace Prim

#endif
