#ifndef VRK_PLUGINS_MAPS_MAPFILEEDITOR_H
#define VRK_PLUGINS_MAPS_MAPFILEEDITOR_H

#include "plugins/prim/files/FilenameEditor.h"

#include <set>
#include <string>

namespace Maps {

// Edits names of map files.
class MapFileEditor : public Prim::FilenameEditor {
public:
    MapFileEditor();
    MapFileEditor(const MapFileEditor&) = default;
    MapFileEditor& operator=(const MapFileEditor&) = default;
    ~MapFileEditor() override;

    void packData() override;

    std::string getAlias() const override;
    bool isExtensionAccepted(const std::string& extension) const override;

    static const std::set<std::string>& getExtensions();
};

} // namespace Maps

#endif
