#include "plugins/prim/FilenameWriter.h"

#include "plugins/prim/FilenameEditor.h"
#include "plugins/prim/PrimEditorUtils.h"

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
    // Outside any work directory a filename has no relative form; its full form is
    // printed then, since an empty filename would not read back.
    const std::string relative = editor_->getRelativeFilename();
    return out << '"' << (relative.empty() ? editor_->getFullFilename() : relative) << '"';
}

} // namespace Prim
