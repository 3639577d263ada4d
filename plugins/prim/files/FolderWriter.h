#ifndef VRK_PLUGINS_PRIM_FILES_FOLDERWRITER_H
#define VRK_PLUGINS_PRIM_FILES_FOLDERWRITER_H

#include "plugins/prim/files/FilenameWriter.h"

namespace Prim {

// Prints a folder as a filename is printed.
class FolderWriter : public FilenameWriter {
public:
    explicit FolderWriter(const VRK::DataEditor* dataEditor);
};

} // namespace Prim

#endif
