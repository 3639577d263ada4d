#include "plugins/prim/IntSetWriter.h"

#include "plugins/prim/IntSetEditor.h"
#include "plugins/prim/PrimEditorUtils.h"

namespace Prim {

IntSetWriter::IntSetWriter(const VRK::DataEditor* dataEditor)
    : VRK::DataWriter(dataEditor), editor_(&PrimEditorUtils::editorOf<IntSetEditor>(dataEditor))
{
}

std::ostream& IntSetWriter::write(std::ostream& out, int) const
{
    if (editor_->getIntCount() == 0)
        return out << "[]";
    out << "[ ";
    for (size_t i = 0; i < editor_->getIntCount(); ++i)
        out << (i == 0 ? "" : ", ") << editor_->getInt(i);
    return out << " ]";
}

} // namespace Prim
