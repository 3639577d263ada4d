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
    return out << '"' << editor_->getRelativeFilename() << '"';
}

} // namespace Prim
