#include "plugins/prim/values/keywords/LogTagEditor.h"

#include "base/log/LogTagInfo.h"
#include "plugins/prim/values/DataCast.h"
#include "plugins/prim/values/PrimEditorUtils.h"
#include "plugins/prim/values/keywords/LogTagType.h"

namespace Prim {

LogTagEditor::LogTagEditor()
    : VRK::DataEditor("LogTagEditor", "Editor for LogTag values", LogTagType::getInstance()),
      value_(VRK::trace)
{
}

LogTagEditor::~LogTagEditor() = default;

void LogTagEditor::toStream(std::ostream& out, int) const
{
    out << VRK::LogTagInfo::getName(value_);
}

void LogTagEditor::packData() { PrimEditorUtils::pack<LogTagData>(*this, value_); }

void LogTagEditor::unpackData(const VRK::BaseData& data)
{
    value_ = DataCast::as<LogTagData>(data).getValue();
}

void LogTagEditor::setLogTag(VRK::LogTag tag) { value_ = tag; }

} // namespace Prim
