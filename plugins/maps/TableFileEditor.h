#ifndef VRK_PLUGINS_MAPS_TABLEFILEEDITOR_H
#define VRK_PLUGINS_MAPS_TABLEFILEEDITOR_H

#include "plugins/prim/files/FilenameEditor.h"

#include <set>
#include <string>

namespace Maps {

// Edits names of table files.
class TableFileEditor : public Prim::FilenameEditor {
public:
    TableFileEditor();
    TableFileEditor(const TableFileEditor&) = default;
    TableFileEditor& operator=(const TableFileEditor&) = default;
    ~TableFileEditor() override;

    void packData() override;

    std::string getAlias() const override;
    bool isExtensionAccepted(const std::string& extension) const override;

    static const std::set<std::string>& getExtensions();
};

} // namespace Maps

#endif
