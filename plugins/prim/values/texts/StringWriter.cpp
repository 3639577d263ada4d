#include "plugins/prim/values/texts/StringWriter.h"

#include "base/util/StringUtils.h"
#include "plugins/prim/values/PrimEditorUtils.h"
#include "plugins/prim/values/texts/StringEditor.h"

namespace Prim {

StringWriter::StringWriter(const VRK::DataEditor* dataEditor)
    : VRK::DataWriter(dataEditor), editor_(&PrimEditorUtils::editorOf<StringEditor>(dataEditor))
{
}

std::ostream& StringWriter::write(std::ostream& out, int) const
{
    std::string text = editor_->getString();
    VRK::StringUtils::replaceAll(text, "\"", "\\\"");
    return out << '"' << text << '"';
}

} // namespace Prim
