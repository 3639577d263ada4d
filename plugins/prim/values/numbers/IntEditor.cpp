#include "plugins/prim/values/numbers/IntEditor.h"

#include "plugins/prim/values/DataCast.h"
#include "plugins/prim/values/PrimEditorUtils.h"
#include "plugins/prim/values/numbers/IntType.h"

namespace Prim {

IntEditor::IntEditor()
    : VRK::DataEditor("IntEditor", "Editor for Int values", IntType::getInstance()), value_(0)
{
}

IntEditor::~IntEditor() = default;

void IntEditor::packData() { PrimEditorUtils::pack<IntData>(*this, value_); }

void IntEditor::unpackData(const VRK::BaseData& data)
{
    value_ = DataCast::as<IntData>(data).getValue();
}

void IntEditor::setInt(int value) { value_ = value; }

} // namespace Prim
