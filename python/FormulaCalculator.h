#ifndef VRK_PYTHON_FORMULACALCULATOR_H
#define VRK_PYTHON_FORMULACALCULATOR_H

#include <pybind11/numpy.h>
#include <pybind11/pybind11.h>

#include <string>

// `vrk.calculate`: a formula of the map language evaluated by the engine over numpy
// arrays (or maps), as CalculateMap and CalculateCategoricalMap evaluate it over maps.
class FormulaCalculator {
public:
    // The formula reads `images` (arrays or vrk.Maps) as i1, i2 ...; `values` as $name
    // (str keys) and v1, v2 ... (int keys); `tables`, dicts of keys to values, as %name
    // and t1, t2 ...; `maps` (arrays or vrk.Maps) as #name.
    // Arrays are read in place where MapAdapter borrows them. The result lies on the
    // grid of the first map the formula names. Its cells are float32, null cells NaN;
    // with `categorical`, int32, rounded halves away from zero, null cells the first
    // map's NoData (-9999 without one). The work is spread over
    // `processors` threads (0: every hardware thread) without the interpreter's lock;
    // Ctrl-C stops it with KeyboardInterrupt. A formula that does not read raises
    // vrk.ScriptError at its line and column; one that cannot be evaluated over these
    // inputs vrk.RunError.
    static pybind11::array calculate(const std::string& formula, const pybind11::args& images,
                                     const pybind11::dict& values, const pybind11::dict& tables,
                                     const pybind11::dict& maps, bool categorical,
                                     unsigned int processors);
};

#endif
