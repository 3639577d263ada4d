#include "plugins/prim/values/numbers/DoubleEditor.h"

#include "plugins/prim/values/DataCast.h"
#include "plugins/prim/values/EditorCheckUtils.h"
#include "plugins/prim/values/PrimEditorUtils.h"
#include "plugins/prim/values/numbers/DoubleType.h"

#include <cmath>

namespace Prim {

DoubleEditor::DoubleEditor()
    : VRK::DataEditor("DoubleEditor", "Editor used to edit/create real values.",
                      DoubleType::getInstance()),
      value_(0.0)
{
}

DoubleEditor::~DoubleEditor() = default;

void DoubleEditor::packData() { PrimEditorUtils::pack<DoubleData>(*this, value_); }

void DoubleEditor::unpackData(const VRK::BaseData& data)
{
    value_ = DataCast::as<DoubleData>(data).getValue();
}

void DoubleEditor::setDouble(double value)
{
    value_ = EditorCheckUtils::checked(value, std::isfinite(value), "The real value ",
                                       " is not valid.");
}

} // namespace Prim
