#ifndef VRK_PLUGINS_PRIM_FILES_FOLDERREADER_H
#define VRK_PLUGINS_PRIM_FILES_FOLDERREADER_H

#include "plugins/prim/files/FilenameReader.h"
#include "plugins/prim/values/ValueReader.h"

namespace Prim {

// Reads a folder name between double quotes into a folder editor.
struct FolderReading;
template <class ScannerT>
using FolderReader = ValueReader<ScannerT, FilenameReader, FolderReading>;

} // namespace Prim

#endif
