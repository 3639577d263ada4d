#ifndef VRK_PLUGINS_PRIM_FILES_FOLDERREADER_H
#define VRK_PLUGINS_PRIM_FILES_FOLDERREADER_H

#include "plugins/prim/files/FilenameReader.h"

namespace Prim {

// Reads a folder name between double quotes into a folder editor.
template <class ScannerT>
class FolderReader : public FilenameReader<ScannerT> {
public:
    explicit FolderReader(VRK::DataEditor* dataEditor);
};

extern template class FolderReader<VRK::ScriptScanner>;
extern template class FolderReader<VRK::PlainScanner>;

} // namespace Prim

#endif
