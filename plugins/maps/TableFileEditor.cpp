#include "plugins/maps/TableFileEditor.h"

#include "plugins/maps/TableFileData.h"
#include "plugins/maps/TableFileType.h"

template class Prim::FileKindEditor<Maps::TableFileKind>;

namespace Maps {

TableFileEditor::~TableFileEditor() = default;

// Tables are kept as comma-separated text.
const std::set<std::string>& TableFileEditor::getExtensions()
{
    static const std::set<std::string> extensions = {".csv", ".txt"};
    return extensions;
}

} // namespace Maps
