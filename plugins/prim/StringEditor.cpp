#include "plugins/prim/StringEditor.h"

#include "plugins/prim/DataCast.h"
#include "plugins/prim/PrimEditorUtils.h"
#include "plugins/prim/StringType.h"

#include <utility>

namespace Prim {

StringEditor::StringEditor()
    : VRK::DataEditor("StringEditor", "Editor for String values", StringType::getInstance()),
      value_()
{
}

StringEditor::~StringEditor() = default;

void StringEditor::packData() { PrimEditorUtils::pack<StringData>(*this, value_); }

void StringEditor::unpackData(const VRK::BaseData& data)
{
    value_ = DataCast::as<StringData>(data).getValue();
}

void StringEditor::setString(std::string value) { value_ = std::move(value); }

} // namespace Prim
