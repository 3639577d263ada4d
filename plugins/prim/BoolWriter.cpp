#include "plugins/prim/BoolWriter.h"

#include "plugins/prim/BoolEditor.h"
#include "plugins/prim/PrimEditorUtils.h"

namespace Prim {

BoolWriter::BoolWriter(const VRK::DataEditor* dataEditor)
    : VRK::DataWriter(dataEditor), editor_(&PrimEditorUtils::editorOf<BoolEditor>(dataEditor))
{
}

std::ostream& BoolWriter::write(std::ostream& out, int) const
{
    return out << (editor_->getBool() ? ".yes" : ".no");
}

} // namespace Prim
