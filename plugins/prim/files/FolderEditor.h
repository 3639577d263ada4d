#ifndef VRK_PLUGINS_PRIM_FILES_FOLDEREDITOR_H
#define VRK_PLUGINS_PRIM_FILES_FOLDEREDITOR_H

#include "plugins/prim/files/FilenameEditor.h"

namespace Prim {

// Edits folders: plain directories, names that end in a point, and ".zip" archives.
class FolderEditor : public FilenameEditor {
public:
    FolderEditor();
    FolderEditor(const FolderEditor&) = default;
    FolderEditor& operator=(const FolderEditor&) = default;
    ~FolderEditor() override;

    void packData() override;

    std::string getAlias() const override;
    bool isExtensionAccepted(const std::string& extension) const override;
};

} // namespace Prim

#endif
