#include "python/PythonErrors.h"

#include "apps/host/DiagnosticPrinter.h"

#include "base/error/Exception.h"

#include <sstream>

namespace py = pybind11;

namespace {

py::object errorClass(const char* kind) { return py::module_::import("vrk.errors").attr(kind); }

py::object positionPart(int value)
{
    return value > 0 ? py::object(py::int_(value)) : py::object(py::none());
}

} // namespace

void PythonErrors::raise(const char* kind, const HostError& error,
                         const std::function<void(DiagnosticPrinter&)>& addSources)
{
    std::ostringstream text;
    DiagnosticPrinter printer(text);
    addSources(printer);
    printer.print(error);
    std::string diagnostic = text.str();
    if (!diagnostic.empty() && diagnostic.back() == '\n')
        diagnostic.pop_back();
    const VRK::ScriptPosition& position = error.getPosition();
    const py::object type = errorClass(kind);
    const py::object instance = type(
        error.getMessage(), py::arg("file") = position.file.str(),
        py::arg("line") = positionPart(position.line),
        py::arg("column") = positionPart(position.column),
        py::arg("functor") = error.getFunctor().empty() ? py::object(py::none())
                                                          : py::object(py::str(error.getFunctor())),
        py::arg("diagnostic") = diagnostic);
    PyErr_SetObject(type.ptr(), instance.ptr());
    throw py::error_already_set();
}

void PythonErrors::registerTranslator()
{
    py::register_exception_translator([](std::exception_ptr pending) {
        try {
            if (pending)
                std::rethrow_exception(pending);
        } catch (const VRK::Exception& error) {
            const py::object type = errorClass("Error");
            PyErr_SetObject(type.ptr(), type(error.getMessage()).ptr());
        }
    });
}
