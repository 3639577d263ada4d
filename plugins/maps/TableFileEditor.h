#ifndef VRK_PLUGINS_MAPS_TABLEFILEEDITOR_H
#define VRK_PLUGINS_MAPS_TABLEFILEEDITOR_H

#include "plugins/maps/TableFileKind.h"
#include "plugins/prim/files/FileKindEditor.h"

#include <set>
#include <string>

namespace Maps {

// Edits names of table files.
class TableFileEditor : public Prim::FileKindEditor<TableFileKind> {
public:
    ~TableFileEditor() override;

    static const std::set<std::string>& getExtensions();
};

} // namespace Maps

extern template class Prim::FileKindEditor<Maps::TableFileKind>;

#endif
