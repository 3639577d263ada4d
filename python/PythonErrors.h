#ifndef VRK_PYTHON_PYTHONERRORS_H
#define VRK_PYTHON_PYTHONERRORS_H

#include "apps/host/HostError.h"

#include <pybind11/pybind11.h>

#include <functional>
#include <string>

class DiagnosticPrinter;

// Raises the module's own exceptions (vrk.errors): vrk.ScriptError for a script, a
// parameter or a formula that is wrong, vrk.RunError for a run or calculation that
// failed. Each carries the message, file, line, column, the functor that failed (or
// None) and, as its text, the diagnostic the command line prints.
class PythonErrors {
public:
    // `addSources` gives the printer the texts that the diagnostic may quote.
    [[noreturn]] static void raise(const char* kind, const HostError& error,
                                   const std::function<void(DiagnosticPrinter&)>& addSources);
    // Any other error of the host's becomes a vrk.Error with its message.
    static void registerTranslator();
};

#endif
