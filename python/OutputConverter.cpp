#include "python/OutputConverter.h"

#include "base/log/LogTagInfo.h"
#include "plugins/prim/files/FilenameData.h"
#include "plugins/prim/files/PathData.h"
#include "plugins/prim/files/WorkdirData.h"
#include "plugins/prim/formula/ImageExpressionData.h"
#include "plugins/prim/values/keywords/BoolData.h"
#include "plugins/prim/values/keywords/LogTagData.h"
#include "plugins/prim/values/numbers/DoubleData.h"
#include "plugins/prim/values/numbers/IntData.h"
#include "plugins/prim/values/numbers/IntSetData.h"
#include "plugins/prim/values/texts/StringData.h"
#include "python/MapAdapter.h"
#include "tessaly/images/LookupTableData.h"

#include <pybind11/stl.h>

#include <typeinfo>

namespace py = pybind11;

namespace {

py::object tableToPython(const Tessaly::LookupTable& table)
{
    py::dict entries;
    for (auto entry = table.getIterator(); entry.hasNext();) {
        const auto [key, value] = entry.next();
        entries[py::float_(key)] = value;
    }
    return std::move(entries);
}

// An int is also a double: the narrower kinds are asked for first.
py::object numberToPython(const VRK::BaseData& data)
{
    if (const auto* value = dynamic_cast<const Prim::BoolData*>(&data))
        return py::bool_(value->getValue());
    if (const auto* value = dynamic_cast<const Prim::IntData*>(&data))
        return py::int_(value->getValue());
    if (const auto* value = dynamic_cast<const Prim::DoubleData*>(&data))
        return py::float_(value->getValue());
    if (const auto* value = dynamic_cast<const Prim::IntSetData*>(&data))
        return py::cast(value->getValue());
    return py::object();
}

py::object textToPython(const VRK::BaseData& data)
{
    if (const auto* value = dynamic_cast<const Prim::StringData*>(&data))
        return py::str(value->getValue());
    if (const auto* value = dynamic_cast<const Prim::FilenameData*>(&data))
        return py::str(value->getCompoundFilename().getFullFilename().string());
    if (const auto* value = dynamic_cast<const Prim::PathData*>(&data))
        return py::str(value->getValue().string());
    if (const auto* value = dynamic_cast<const Prim::WorkdirData*>(&data))
        return py::str(value->getPathString());
    if (const auto* value = dynamic_cast<const Prim::LogTagData*>(&data))
        return py::str(VRK::LogTagInfo::getName(value->getValue()));
    if (const auto* value = dynamic_cast<const Prim::ImageExpressionData*>(&data))
        return py::str(value->getValue()->toString());
    return py::object();
}

} // namespace

py::object OutputConverter::toPython(const std::shared_ptr<const VRK::BaseData>& data)
{
    if (auto map = std::dynamic_pointer_cast<const Maps::MapData>(data))
        return py::cast(MapAdapter(map));
    if (const auto* table = dynamic_cast<const Tessaly::LookupTableData*>(data.get()))
        return tableToPython(*table->getValue());
    if (py::object number = numberToPython(*data))
        return number;
    if (py::object text = textToPython(*data))
        return text;
    const VRK::BaseData& held = *data;
    throw py::type_error(std::string("Data of the class ") + typeid(held).name()
                         + " has no Python value.");
}
