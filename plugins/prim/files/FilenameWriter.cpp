#include "plugins/prim/files/FilenameWriter.h"

#include "base/util/PathUtils.h"

#include "plugins/prim/files/FilenameEditor.h"
#include "plugins/prim/files/PathEditor.h"
#include "plugins/prim/values/PrimEditorUtils.h"

namespace Prim {

FilenameWriter::FilenameWriter(const VRK::DataEditor* dataEditor)
    : VRK::DataWriter(dataEditor), editor_(&PrimEditorUtils::editorOf<FilenameEditor>(dataEditor))
{
}

FilenameWriter::FilenameWriter(const FilenameWriter& other) = default;

FilenameWriter& FilenameWriter::operator=(const FilenameWriter& other) = default;

FilenameWriter::~FilenameWriter() = default;

std::ostream& FilenameWriter::write(std::ostream& out, int) const
{
    // A complete name stays as the modeller wrote it. Outside any work directory a
    // relative filename has no relative form of its own; it is printed relative to the
    // folder the script is written to, so that a script keeps naming the same files
    // wherever it is moved together with them.
    std::string text =
        editor_->isGivenComplete() ? editor_->getFullFilename() : editor_->getRelativeFilename();
    if (text.empty())
        text = VRK::Boost::PathUtils::getRelativePath(editor_->getFullFilename()).string();
    return out << '"' << PathEditor::denormalisePath(text) << '"';
}

} // namespace Prim
