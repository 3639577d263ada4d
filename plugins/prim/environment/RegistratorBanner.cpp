#include "plugins/prim/environment/RegistratorBanner.h"

#include "base/error/Exception.h"
#include "base/error/ExceptionUtils.h"
#include "plugins/prim/files/FolderEditor.h"
#include "plugins/prim/values/numbers/DoubleEditor.h"
#include "plugins/prim/values/numbers/PositiveIntEditor.h"
#include "plugins/prim/values/texts/NameEditor.h"
#include "plugins/prim/values/texts/StringEditor.h"

#include <sstream>

namespace Prim {

namespace {
// A bound port keeps its editor, but what the editor holds is not what the port will
// receive: the banner shows it as unknown.
const VRK::DataEditor* typedInEditor(const VRK::InputPort& port)
{
    return port.isBound() ? nullptr : port.getDataEditor();
}
} // namespace

template <class EditorT>
const EditorT* RegistratorBanner::editorOf(const VRK::InputPort& port, const char* editorClass)
{
    const VRK::DataEditor* editor = typedInEditor(port);
    if (!editor)
        return nullptr;
    const auto* typed = dynamic_cast<const EditorT*>(editor);
    if (!typed)
        VRK::ExceptionUtils::raise<VRK::Exception>("Unable to convert the editor of input port \""
                                                   + port.getName() + "\" to " + editorClass);
    return typed;
}

std::string RegistratorBanner::number(const VRK::InputPort& numberPort)
{
    const auto* editor = editorOf<PositiveIntEditor>(numberPort, "PositiveIntEditor");
    return editor ? "#" + std::to_string(editor->getPositiveInt()) : "<undefined>";
}

std::string RegistratorBanner::name(const VRK::InputPort& namePort)
{
    const auto* editor = editorOf<NameEditor>(namePort, "NameEditor");
    return editor ? "Name \"" + editor->getName() + "\"" : "Name <undefined>";
}

std::string RegistratorBanner::realValue(const VRK::InputPort& valuePort)
{
    const auto* editor = dynamic_cast<const DoubleEditor*>(typedInEditor(valuePort));
    if (!editor)
        return std::string();
    std::ostringstream text;
    text << " is " << editor->getDouble();
    return text.str();
}

std::string RegistratorBanner::stringValue(const VRK::InputPort& valuePort)
{
    const auto* editor = dynamic_cast<const StringEditor*>(typedInEditor(valuePort));
    return editor ? " is \"" + editor->getString() + "\"" : std::string();
}

std::string RegistratorBanner::folderValue(const VRK::InputPort& valuePort)
{
    const auto* editor = dynamic_cast<const FolderEditor*>(typedInEditor(valuePort));
    return editor ? " is \"" + editor->getFilename() + "\"" : std::string();
}

} // namespace Prim
