#include "plugins/prim/values/texts/StringEditor.h"

#include "plugins/prim/values/DataCast.h"
#include "plugins/prim/values/PrimEditorUtils.h"
#include "plugins/prim/values/texts/StringType.h"

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
