#include "plugins/prim/DoubleEditor.h"

#include "base/ExceptionUtils.h"
#include "base/IllegalDataException.h"
#include "plugins/prim/DataCast.h"
#include "plugins/prim/DoubleType.h"

#include <cmath>
#include <sstream>

namespace Prim {

DoubleEditor::DoubleEditor()
    : VRK::DataEditor("DoubleEditor", "Editor used to edit/create real values.",
                      DoubleType::getInstance()),
      value_(0.0)
{
}

DoubleEditor::~DoubleEditor() = default;

void DoubleEditor::packData() { setDataPtr(std::make_shared<const DoubleData>(value_)); }

void DoubleEditor::unpackData(const VRK::BaseData& data)
{
    value_ = DataCast::as<DoubleData>(data).getValue();
}

void DoubleEditor::setDouble(double value)
{
    if (!std::isfinite(value)) {
        std::ostringstream message;
        message << "The real value " << value << " is not valid.";
        VRK::ExceptionUtils::raise<VRK::IllegalDataException>(message.str());
    }
    value_ = value;
}

} // namespace Prim
