#include "plugins/prim/PositiveIntEditor.h"

#include "base/ExceptionUtils.h"
#include "base/IllegalDataException.h"
#include "plugins/prim/DataCast.h"
#include "plugins/prim/PositiveIntType.h"

#include <sstream>

namespace Prim {

PositiveIntEditor::PositiveIntEditor()
    : VRK::DataEditor("PositiveIntEditor", "Editor for positive integer values",
                      PositiveIntType::getInstance()),
      value_(1)
{
}

PositiveIntEditor::~PositiveIntEditor() = default;

void PositiveIntEditor::packData() { setDataPtr(std::make_shared<const PositiveIntData>(value_)); }

void PositiveIntEditor::unpackData(const VRK::BaseData& data)
{
    value_ = DataCast::as<PositiveIntData>(data).getValue();
}

void PositiveIntEditor::setPositiveInt(int value)
{
    if (value <= 0) {
        std::ostringstream message;
        message << "The positive integer value \"" << value << "\" is not valid.";
        VRK::ExceptionUtils::raise<VRK::IllegalDataException>(message.str());
    }
    value_ = value;
}

} // namespace Prim
