// The compiled part of the Python package `vrk` (vrk._core): the host set up once,
// with every plugin loaded, when the package is imported.
#include "apps/host/HostSession.h"

#include "base/log/LogTag.h"
#include "python/FormulaCalculator.h"
#include "python/MapAdapter.h"
#include "python/PythonErrors.h"
#include "python/PythonScript.h"

#include <pybind11/stl.h>

#include <sstream>

namespace py = pybind11;

namespace {

// Lines at .warning and above are kept outside runs; a run sets its own level. Plugins
// that do not load are told as Python warnings.
void setUpHost()
{
    static const HostSession session(VRK::warning, std::string(), nullptr);
    std::ostringstream failures;
    if (!session.reportPluginFailures(failures, "vrk"))
        PyErr_WarnEx(PyExc_RuntimeWarning, failures.str().c_str(), 1);
}

void defineMap(py::module_& module)
{
    py::class_<MapAdapter>(module, "Map", "A raster map: its cells, grid and NoData value.")
        .def_static("from_array", &MapAdapter::fromArray, py::arg("array"),
                    py::arg("nodata") = py::none(), py::arg("geotransform") = py::none(),
                    py::arg("projection") = std::string(), py::arg("copy") = true,
                    "A map of the cells of a 2-D array, copied; with copy=False the cells of a "
                    "C-contiguous int32, float32 or float64 array are shared, and the array "
                    "kept alive, and must not change while the map lives.")
        .def("to_array", py::overload_cast<>(&MapAdapter::toArray, py::const_),
             "The cells, read-only, without a copy.")
        .def("save", &MapAdapter::save, py::arg("path"),
             "Writes a GeoTIFF (.tif, .tiff) or an ASCII grid (.asc).")
        .def_property_readonly("lines", &MapAdapter::getLines)
        .def_property_readonly("columns", &MapAdapter::getColumns)
        .def_property_readonly("geotransform", &MapAdapter::getGeoTransform)
        .def_property_readonly("projection", &MapAdapter::getProjection)
        .def_property_readonly("nodata", &MapAdapter::getNoData)
        .def_property_readonly("dtype", &MapAdapter::getCellType)
        .def("__repr__", [](const MapAdapter& map) {
            const py::object nodata = map.getNoData();
            return "<vrk.Map of " + std::to_string(map.getLines()) + " x "
                   + std::to_string(map.getColumns()) + " " + map.getCellType() + " cells, "
                   + (nodata.is_none() ? std::string("no NoData")
                                       : "NoData " + std::string(py::repr(nodata)))
                   + ">";
        });
    module.def("load_map", &MapAdapter::load, py::arg("path"),
               "Reads the first band of a raster file of any format the raster library reads.");
}

void defineScript(py::module_& module)
{
    py::class_<PythonScript>(module, "Script", "A model script, read and verified.")
        .def(py::init<const std::string&, const py::dict&>(), py::arg("path"),
             py::arg("inputs") = py::dict())
        .def("set", &PythonScript::set, py::arg("target"), py::arg("value"))
        .def("run", &PythonScript::run, py::arg("scheduler") = "auto", py::arg("processors") = 0,
             py::arg("log_level") = ".result", py::arg("memory") = py::none(),
             py::arg("log") = py::none())
        .def("output", &PythonScript::output, py::arg("target"))
        .def_property_readonly("path", &PythonScript::getFile);
}

} // namespace

PYBIND11_MODULE(_core, module)
{
    py::module_::import("numpy");
    setUpHost();
    PythonErrors::registerTranslator();
    defineMap(module);
    defineScript(module);
    module.def("calculate", &FormulaCalculator::calculate, py::arg("formula"),
               py::arg("values") = py::dict(), py::arg("tables") = py::dict(),
               py::arg("maps") = py::dict(), py::arg("categorical") = false,
               py::arg("processors") = 0);
}
