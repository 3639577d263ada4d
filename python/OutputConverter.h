#ifndef VRK_PYTHON_OUTPUTCONVERTER_H
#define VRK_PYTHON_OUTPUTCONVERTER_H

#include "base/data/BaseData.h"

#include <pybind11/pybind11.h>

#include <memory>

// The Python value of what an output holds: bool, int, float, a set of ints, str
// (strings, names, log levels, formulas, and the complete paths of files, folders and
// work directories), a dict of a lookup table's keys and values, or a vrk.Map.
class OutputConverter {
public:
    // Throws a TypeError for data of a kind that has no Python value.
    static pybind11::object toPython(const std::shared_ptr<const VRK::BaseData>& data);
};

#endif
