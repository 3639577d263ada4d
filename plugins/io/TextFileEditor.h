#ifndef VRK_PLUGINS_IO_TEXTFILEEDITOR_H
#define VRK_PLUGINS_IO_TEXTFILEEDITOR_H

#include "plugins/io/TextFileKind.h"
#include "plugins/prim/files/FileKindEditor.h"

#include <set>
#include <string>

namespace Io {

// Edits names of text files.
class TextFileEditor : public Prim::FileKindEditor<TextFileKind> {
public:
    ~TextFileEditor() override;

    // The extensions of the files that are read and written as text.
    static const std::set<std::string>& getExtensions();
};

} // namespace Io

extern template class Prim::FileKindEditor<Io::TextFileKind>;

#endif
