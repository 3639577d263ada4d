#ifndef VRK_PLUGINS_PRIM_FILES_FILEKINDEDITOR_H
#define VRK_PLUGINS_PRIM_FILES_FILEKINDEDITOR_H

#include "plugins/prim/files/FilenameEditor.h"

#include <memory>
#include <string>

namespace Prim {

// Edits names of files of one kind (see FileKindData): it accepts the extensions of the
// kind's editor (`KindT::Editor::getExtensions()`) and packs the kind's data. Its members
// are instantiated once, with the kind's classes complete, where the kind's editor is
// defined.
template <class KindT>
class FileKindEditor : public FilenameEditor {
public:
    void packData() override;
    std::string getAlias() const override;
    bool isExtensionAccepted(const std::string& extension) const override;

protected:
    FileKindEditor();
};

template <class KindT>
FileKindEditor<KindT>::FileKindEditor()
    : FilenameEditor(std::string(KindT::name) + "Editor",
                     std::string("Editor for ") + KindT::word + "s", KindT::Type::getInstance())
{
}

template <class KindT>
void FileKindEditor<KindT>::packData()
{
    setDataPtr(std::make_shared<const typename KindT::Data>(getCompoundFilename()));
}

template <class KindT>
std::string FileKindEditor<KindT>::getAlias() const
{
    return KindT::word;
}

template <class KindT>
bool FileKindEditor<KindT>::isExtensionAccepted(const std::string& extension) const
{
    return KindT::Editor::getExtensions().count(extension) != 0;
}

} // namespace Prim

#endif
