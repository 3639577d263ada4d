#ifndef VRK_PLUGINS_PRIM_VALUES_EDITORCHECKUTILS_H
#define VRK_PLUGINS_PRIM_VALUES_EDITORCHECKUTILS_H

#include "base/error/ExceptionUtils.h"
#include "base/error/IllegalDataException.h"

#include <sstream>

namespace Prim {

// How an editor of one value refuses a value it cannot hold.
class EditorCheckUtils {
public:
    // `value` when it is `valid`; otherwise raises an IllegalDataException whose message
    // is `before`, the value and `after`, such as "The real value inf is not valid.".
    template <class T>
    static T checked(T value, bool valid, const char* before, const char* after)
    {
        if (!valid) {
            std::ostringstream message;
            message << before << value << after;
            VRK::ExceptionUtils::raise<VRK::IllegalDataException>(message.str());
        }
        return value;
    }
};

} // namespace Prim

#endif
