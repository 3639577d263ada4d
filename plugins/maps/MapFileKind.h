#ifndef VRK_PLUGINS_MAPS_MAPFILEKIND_H
#define VRK_PLUGINS_MAPS_MAPFILEKIND_H

namespace Maps {

class MapFileData;
class MapFileEditor;
class MapFileType;
class MapFileViewer;

// The map file type's classes and words, from which Prim's file-kind templates make
// them.
struct MapFileKind {
    using Data = MapFileData;
    using Editor = MapFileEditor;
    using Type = MapFileType;
    using Viewer = MapFileViewer;
    static constexpr const char* name = "MapFile";
    static constexpr const char* description = "Map file";
    static constexpr const char* word = "map file";
};

} // namespace Maps

#endif
