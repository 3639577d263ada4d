#ifndef VRK_PLUGINS_MAPS_TABLEFILEKIND_H
#define VRK_PLUGINS_MAPS_TABLEFILEKIND_H

namespace Maps {

class TableFileData;
class TableFileEditor;
class TableFileType;
class TableFileViewer;

// The table file type's classes and words, from which Prim's file-kind templates make
// them.
struct TableFileKind {
    using Data = TableFileData;
    using Editor = TableFileEditor;
    using Type = TableFileType;
    using Viewer = TableFileViewer;
    static constexpr const char* name = "TableFile";
    static constexpr const char* description = "Table file";
    static constexpr const char* word = "table file";
};

} // namespace Maps

#endif
