#include "plugins/io/TextFileEditor.h"

#include "plugins/io/TextFileData.h"
#include "plugins/io/TextFileType.h"

template class Prim::FileKindEditor<Io::TextFileKind>;

namespace Io {

TextFileEditor::~TextFileEditor() = default;

// Plain text, tables and logs; a name without extension is taken as text too.
const std::set<std::string>& TextFileEditor::getExtensions()
{
    static const std::set<std::string> extensions = {"",     ".txt", ".text", ".csv", ".tsv",
                                                     ".dat", ".log", ".json", ".xml", ".md"};
    return extensions;
}

} // namespace Io
