#ifndef VRK_BASE_ERROR_EXCEPTIONUTILS_H
#define VRK_BASE_ERROR_EXCEPTIONUTILS_H

#include "base/error/Exception.h"

#include <string>

namespace VRK {

class ExceptionUtils {
public:
    // Logs at ".debug" the exception's name, message and call trace, then throws it.
    template <class E>
    [[noreturn]] static void raise(const std::string& message)
    {
        raise(E(message));
    }

    // The same for an exception already made, such as a parse error with its position.
    template <class E>
    [[noreturn]] static void raise(const E& exception)
    {
        logThrow(exception);
        throw exception;
    }

    // The same for an error that lies at a known place in a script.
    template <class E>
    [[noreturn]] static void raiseAt(const ScriptPosition& position, const std::string& message)
    {
        E exception(message);
        exception.setScriptPosition(position);
        raise(exception);
    }

    // The debug line that announces a thrown exception.
    static void logThrow(const Exception& exception);
};

} // namespace VRK

#endif
