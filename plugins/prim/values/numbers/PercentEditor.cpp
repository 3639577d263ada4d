#include "plugins/prim/values/numbers/PercentEditor.h"

#include "base/error/ExceptionUtils.h"
#include "base/error/IllegalDataException.h"
#include "plugins/prim/values/DataCast.h"
#include "plugins/prim/values/PrimEditorUtils.h"
#include "plugins/prim/values/numbers/PercentType.h"

#include <sstream>

namespace Prim {

namespace {
// Written as two tests, not below and not above, so that a NaN passes and is stored.
double checkedInRange(double value, double upper)
{
    if (value < 0 || value > upper) {
        std::ostringstream message;
        message << "The percentual value " << value << " is not in the range [ 0, " << upper
                << " ].";
        VRK::ExceptionUtils::raise<VRK::IllegalDataException>(message.str());
    }
    return value;
}
} // namespace

PercentEditor::PercentEditor()
    : VRK::DataEditor("PercentEditor", "Editor for percentual values", PercentType::getInstance()),
      value_(0.0)
{
}

PercentEditor::~PercentEditor() = default;

void PercentEditor::packData() { PrimEditorUtils::pack<PercentData>(*this, value_); }

void PercentEditor::unpackData(const VRK::BaseData& data)
{
    value_ = DataCast::as<PercentData>(data).getValue();
}

void PercentEditor::setPercent(double fraction) { value_ = checkedInRange(fraction, 1); }

void PercentEditor::setPercent100(double percentage)
{
    value_ = checkedInRange(percentage, 100) / 100;
}

} // namespace Prim
