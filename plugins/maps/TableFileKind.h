#ifndef VRK_PLUGINS_MAPS_TABLEFILEKIND_H
#define VRK_PLUGINS_MAPS_TABLEFILEKIND_H

#include "plugins/prim/files/FileKind.h"

namespace Maps {

// The table file type's classes (declared here, where they are first named) and words, from
// which Prim's file-kind templates make them.
struct TableFileKind : Prim::FileKind<TableFileKind, class TableFileData, class TableFileEditor,
                                      class TableFileType, class TableFileViewer> {
    static constexpr const char* name = "TableFile";
    static constexpr const char* word = "table file";
};

} // namespace Maps

#endif
