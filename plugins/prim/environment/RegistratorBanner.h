#ifndef VRK_PLUGINS_PRIM_ENVIRONMENT_REGISTRATORBANNER_H
#define VRK_PLUGINS_PRIM_ENVIRONMENT_REGISTRATORBANNER_H

#include "base/graph/InputPort.h"

#include <string>

namespace Prim {

// The box texts of the registrators: the number or name under which a value is known,
// and the value itself when it is typed in.
class RegistratorBanner {
public:
    // A bound port counts as one without an editor.
    // "#" and the number, or "<undefined>" when the port has no editor.
    static std::string number(const VRK::InputPort& numberPort);
    // "Name", a blank and the quoted name, or "Name <undefined>".
    static std::string name(const VRK::InputPort& namePort);
    // " is " and the value as a real number in six significant digits, or nothing when
    // the port holds no real-number editor (a value of a type below Double, or bound).
    static std::string realValue(const VRK::InputPort& valuePort);
    // " is " and the quoted text of a string or a folder, or nothing when the port holds
    // no editor of that kind.
    static std::string stringValue(const VRK::InputPort& valuePort);
    static std::string folderValue(const VRK::InputPort& valuePort);

private:
    // The editor of `port` as EditorT; an editor of another kind is an error.
    template <class EditorT>
    static const EditorT* editorOf(const VRK::InputPort& port, const char* editorClass);
};

} // namespace Prim

#endif
