#include "plugins/maps/TableFileEditor.h"

#include "plugins/maps/TableFileData.h"
#include "plugins/maps/TableFileType.h"

namespace Maps {

TableFileEditor::TableFileEditor()
    : Prim::FilenameEditor("TableFileEditor", "Editor for table files",
                           TableFileType::getInstance())
{
}

TableFileEditor::~TableFileEditor() = default;

void TableFileEditor::packData()
{
    setDataPtr(std::make_shared<const TableFileData>(getCompoundFilename()));
}

std::string TableFileEditor::getAlias() const { return "table file"; }

bool TableFileEditor::isExtensionAccepted(const std::string& extension) const
{
    return getExtensions().count(extension) != 0;
}

// Tables are kept as comma-separated text.
const std::set<std::string>& TableFileEditor::getExtensions()
{
    static const std::set<std::string> extensions = {".csv", ".txt"};
    return extensions;
}

} // namespace Maps
