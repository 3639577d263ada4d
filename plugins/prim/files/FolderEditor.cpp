#include "plugins/prim/files/FolderEditor.h"

#include "plugins/prim/files/FolderData.h"
#include "plugins/prim/files/FolderType.h"

namespace Prim {

FolderEditor::FolderEditor()
    : FilenameEditor("FolderEditor", "Editor for folders", FolderType::getInstance())
{
}

FolderEditor::~FolderEditor() = default;

void FolderEditor::packData()
{
    setDataPtr(std::make_shared<const FolderData>(getCompoundFilename()));
}

std::string FolderEditor::getAlias() const { return "folder"; }

// A plain directory, a name that ends in a point, or an archive.
bool FolderEditor::isExtensionAccepted(const std::string& extension) const
{
    return extension.empty() || extension == "." || extension == ".zip";
}

} // namespace Prim
