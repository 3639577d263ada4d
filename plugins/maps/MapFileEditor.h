#ifndef VRK_PLUGINS_MAPS_MAPFILEEDITOR_H
#define VRK_PLUGINS_MAPS_MAPFILEEDITOR_H

#include "plugins/maps/MapFileKind.h"
#include "plugins/prim/files/FileKindEditor.h"

#include <set>
#include <string>

namespace Maps {

// Edits names of map files.
class MapFileEditor : public Prim::FileKindEditor<MapFileKind> {
public:
    ~MapFileEditor() override;

    static const std::set<std::string>& getExtensions();
};

} // namespace Maps

extern template class Prim::FileKindEditor<Maps::MapFileKind>;

#endif
