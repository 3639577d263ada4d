#include "plugins/prim/values/keywords/BoolWriter.h"

#include "plugins/prim/values/PrimEditorUtils.h"
#include "plugins/prim/values/keywords/BoolEditor.h"

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
