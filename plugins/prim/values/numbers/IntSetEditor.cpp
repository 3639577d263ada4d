#include "plugins/prim/values/numbers/IntSetEditor.h"

#include "base/error/ExceptionUtils.h"
#include "base/error/IllegalDataException.h"
#include "plugins/prim/values/DataCast.h"
#include "plugins/prim/values/PrimEditorUtils.h"
#include "plugins/prim/values/numbers/IntSetType.h"

#include <iterator>
#include <sstream>

namespace Prim {

IntSetEditor::IntSetEditor()
    : VRK::DataEditor("IntSetEditor", "Editor used to edit/create integer sets",
                      IntSetType::getInstance())
{
}

IntSetEditor::~IntSetEditor() = default;

void IntSetEditor::packData() { PrimEditorUtils::pack<IntSetData>(*this, values_); }

void IntSetEditor::unpackData(const VRK::BaseData& data)
{
    values_ = DataCast::as<IntSetData>(data).getValue();
}

void IntSetEditor::addInt(int value) { values_.insert(value); }

void IntSetEditor::eraseInt(int value) { values_.erase(value); }

void IntSetEditor::clear() { values_.clear(); }

int IntSetEditor::getInt(size_t index) const { return elementAt(values_, index); }

int IntSetEditor::elementAt(const std::set<int>& values, size_t index)
{
    if (index >= values.size()) {
        std::ostringstream message;
        message << "Value #" << index << " is not defined.";
        VRK::ExceptionUtils::raise<VRK::IllegalDataException>(message.str());
    }
    return *std::next(values.begin(), static_cast<std::ptrdiff_t>(index));
}

} // namespace Prim
