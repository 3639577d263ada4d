#include "plugins/prim/values/keywords/BoolEditor.h"

#include "plugins/prim/values/DataCast.h"
#include "plugins/prim/values/PrimEditorUtils.h"
#include "plugins/prim/values/keywords/BoolType.h"

namespace Prim {

BoolEditor::BoolEditor()
    : VRK::DataEditor("BoolEditor", "Editor for Bool values", BoolType::getInstance()),
      value_(false)
{
}

BoolEditor::~BoolEditor() = default;

void BoolEditor::toStream(std::ostream& out, int) const { out << (value_ ? "Yes" : "No"); }

void BoolEditor::packData() { PrimEditorUtils::pack<BoolData>(*this, value_); }

void BoolEditor::unpackData(const VRK::BaseData& data)
{
    value_ = DataCast::as<BoolData>(data).getValue();
}

void BoolEditor::setBool(bool value) { value_ = value; }

} // namespace Prim
