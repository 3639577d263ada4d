#ifndef VRK_PYTHON_PYTHONSCRIPT_H
#define VRK_PYTHON_PYTHONSCRIPT_H

#include "apps/host/ScriptSession.h"

#include <pybind11/pybind11.h>

#include <memory>
#include <string>

// `vrk.Script`: a script read and verified, given values and maps, run, and its outputs
// read back. Errors of the script and its parameters raise vrk.ScriptError, a failed
// run vrk.RunError.
class PythonScript {
public:
    // Reads the script, applies `inputs` ("alias.port" to a value, as `set` takes it),
    // then verifies it. Required inputs left without a value are asked for at the first
    // run instead, so that they may be set in between.
    PythonScript(const std::string& file, const pybind11::dict& inputs);

    // A map is bound to the input from now on, in place of its value or the output it
    // was bound to; any other value is written as in a script (True as .yes, numbers as
    // Python writes them, a str as it is: a String is '"text"') and read by the input's
    // reader, as `vrk run --set alias.port=VALUE` does.
    void set(const std::string& target, const pybind11::object& value);

    // Runs the script on a thread of the host's while this one waits without the
    // interpreter's lock. Log lines up to `logLevel` go, as they come, to `log(level,
    // line)` when it is given, else to the "vrk" logger of Python's logging. Ctrl-C
    // cancels the run and raises KeyboardInterrupt once it has stopped. Runs of one
    // process take turns.
    void run(const std::string& scheduler, unsigned int processors, const std::string& logLevel,
             const pybind11::object& memory, const pybind11::object& log);

    // The Python value of an output after a run; None when the last run left it empty.
    pybind11::object output(const std::string& target) const;

    const std::string& getFile() const { return session_->getFile(); }

private:
    // Verifies the script once; with `deferringInputs`, a script whose first fault is a
    // required input without a value stays to be verified at the run.
    void verify(bool deferringInputs);
    [[noreturn]] void raise(const char* kind, const HostError& error) const;

    std::unique_ptr<ScriptSession> session_;
    bool verified_ = false;
};

#endif
