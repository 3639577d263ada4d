#include "plugins/io/TextFileEditor.h"

#include "plugins/io/TextFileData.h"
#include "plugins/io/TextFileType.h"

namespace Io {

TextFileEditor::TextFileEditor()
    : Prim::FilenameEditor("TextFileEditor", "Editor for text files", TextFileType::getInstance())
{
}

TextFileEditor::~TextFileEditor() = default;

void TextFileEditor::packData()
{
    setDataPtr(std::make_shared<const TextFileData>(getCompoundFilename()));
}

std::string TextFileEditor::getAlias() const { return "text file"; }

bool TextFileEditor::isExtensionAccepted(const std::string& extension) const
{
    return getExtensions().count(extension) != 0;
}

// Plain text, tables and logs; a name without extension is taken as text too.
const std::set<std::string>& TextFileEditor::getExtensions()
{
    static const std::set<std::string> extensions = {"",     ".txt", ".text", ".csv", ".tsv",
                                                     ".dat", ".log", ".json", ".xml", ".md"};
    return extensions;
}

} // namespace Io
