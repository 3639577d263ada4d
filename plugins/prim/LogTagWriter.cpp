#include "plugins/prim/LogTagWriter.h"

#include "plugins/prim/LogTagEditor.h"
#include "plugins/prim/PrimEditorUtils.h"

#include <cassert>

namespace Prim {

LogTagWriter::LogTagWriter(const VRK::DataEditor* dataEditor)
    : VRK::DataWriter(dataEditor), editor_(&PrimEditorUtils::editorOf<LogTagEditor>(dataEditor))
{
}

std::ostream& LogTagWriter::write(std::ostream& out, int) const
{
    switch (editor_->getLogTag()) {
    case VRK::unconditional:
        return out << ".unconditional";
    case VRK::error:
        return out << ".error";
    case VRK::warning:
        return out << ".warning";
    case VRK::result:
        return out << ".result";
    case VRK::info:
        return out << ".info";
    case VRK::info2:
        return out << ".info2";
    case VRK::debug:
        return out << ".debug";
    case VRK::debug2:
        return out << ".debug2";
    case VRK::trace:
        return out << ".trace";
    }
    assert(false && "false");
    return out;
}

} // namespace Prim
