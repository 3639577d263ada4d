#ifndef VRK_PLUGINS_MAPS_MAPFILEKIND_H
#define VRK_PLUGINS_MAPS_MAPFILEKIND_H

#include "plugins/prim/files/FileKind.h"

namespace Maps {

// The map file type's classes (declared here, where they are first named) and words, from
// which Prim's file-kind templates make them.
struct MapFileKind : Prim::FileKind<MapFileKind, class MapFileData, class MapFileEditor,
                                    class MapFileType, class MapFileViewer> {
    static constexpr const char* name = "MapFile";
    static constexpr const char* word = "map file";
};

} // namespace Maps

#endif
