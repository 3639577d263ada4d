#include "plugins/prim/values/numbers/NonNegativeIntEditor.h"

#include "base/error/ExceptionUtils.h"
#include "base/error/IllegalDataException.h"
#include "plugins/prim/values/DataCast.h"
#include "plugins/prim/values/PrimEditorUtils.h"
#include "plugins/prim/values/numbers/NonNegativeIntType.h"

#include <sstream>

namespace Prim {

NonNegativeIntEditor::NonNegativeIntEditor()
    : VRK::DataEditor("NonNegativeIntEditor", "Editor for non-negative integer values",
                      NonNegativeIntType::getInstance()),
      value_(0)
{
}

NonNegativeIntEditor::~NonNegativeIntEditor() = default;

void NonNegativeIntEditor::packData() { PrimEditorUtils::pack<NonNegativeIntData>(*this, value_); }

void NonNegativeIntEditor::unpackData(const VRK::BaseData& data)
{
    value_ = DataCast::as<NonNegativeIntData>(data).getValue();
}

void NonNegativeIntEditor::setNonNegativeInt(int value)
{
    if (value < 0) {
        std::ostringstream message;
        message << "The non-negative integer value \"" << value << "\" is not valid.";
        VRK::ExceptionUtils::raise<VRK::IllegalDataException>(message.str());
    }
    value_ = value;
}

} // namespace Prim
