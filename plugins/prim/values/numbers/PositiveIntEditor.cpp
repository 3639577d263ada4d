#include "plugins/prim/values/numbers/PositiveIntEditor.h"

#include "plugins/prim/values/DataCast.h"
#include "plugins/prim/values/EditorCheckUtils.h"
#include "plugins/prim/values/PrimEditorUtils.h"
#include "plugins/prim/values/numbers/PositiveIntType.h"

namespace Prim {

PositiveIntEditor::PositiveIntEditor()
    : VRK::DataEditor("PositiveIntEditor", "Editor for positive integer values",
                      PositiveIntType::getInstance()),
      value_(1)
{
}

PositiveIntEditor::~PositiveIntEditor() = default;

void PositiveIntEditor::packData() { PrimEditorUtils::pack<PositiveIntData>(*this, value_); }

void PositiveIntEditor::unpackData(const VRK::BaseData& data)
{
    value_ = DataCast::as<PositiveIntData>(data).getValue();
}

void PositiveIntEditor::setPositiveInt(int value)
{
    value_ = EditorCheckUtils::checked(value, value > 0, "The positive integer value \"",
                                       "\" is not valid.");
}

} // namespace Prim
