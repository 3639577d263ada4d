#ifndef VRK_PLUGINS_IO_TEXTFILEEDITOR_H
#define VRK_PLUGINS_IO_TEXTFILEEDITOR_H

#include "plugins/prim/files/FilenameEditor.h"

#include <set>
#include <string>

namespace Io {

// Edits names of text files.
class TextFileEditor : public Prim::FilenameEditor {
public:
    TextFileEditor();
    TextFileEditor(const TextFileEditor&) = default;
    TextFileEditor& operator=(const TextFileEditor&) = default;
    ~TextFileEditor() override;

    void packData() override;

    std::string getAlias() const override;
    bool isExtensionAccepted(const std::string& extension) const override;

    // The extensions of the files that are read and written as text.
    static const std::set<std::string>& getExtensions();
};

} // namespace Io

#endif
