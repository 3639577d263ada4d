#include "plugins/prim/values/texts/NameEditor.h"

#include "base/error/ExceptionUtils.h"
#include "base/error/IllegalDataException.h"
#include "base/util/NameUtils.h"
#include "plugins/prim/values/DataCast.h"
#include "plugins/prim/values/PrimEditorUtils.h"
#include "plugins/prim/values/texts/NameType.h"

#include <utility>

namespace Prim {

NameEditor::NameEditor()
    : VRK::BaseNameEditor("NameEditor", "Editor used to edit/create names.",
                          NameType::getInstance()),
      value_("name")
{
}

NameEditor::~NameEditor() = default;

void NameEditor::packData() { PrimEditorUtils::pack<NameData>(*this, value_); }

void NameEditor::unpackData(const VRK::BaseData& data)
{
    value_ = DataCast::as<NameData>(data).getValue();
}

void NameEditor::setName(std::string name)
{
    if (!VRK::NameUtils::isValidName(name))
        VRK::ExceptionUtils::raise<VRK::IllegalDataException>("The name \"" + name
                                                              + "\" is not valid.");
    value_ = std::move(name);
}

std::string NameEditor::getName() const { return value_; }

} // namespace Prim
