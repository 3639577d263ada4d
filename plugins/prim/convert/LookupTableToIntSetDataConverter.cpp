#include "plugins/prim/convert/LookupTableToIntSetDataConverter.h"

#include "base/log/Logger.h"
#include "plugins/prim/convert/DoubleToIntegerDataConverter.h"
#include "plugins/prim/values/DataCast.h"
#include "plugins/prim/values/numbers/IntSetData.h"
#include "tessaly/images/LookupTableData.h"

#include <cassert>
#include <cmath>
#include <sstream>

namespace Prim {

namespace {

void logTranslation(double key, int integer)
{
    VRK::Logger* logger = VRK::Logger::getCurrentThreadLogger();
    if (!logger->isLogging(VRK::debug))
        return;
    std::ostringstream line;
    line.precision(20);
    line << "Key " << key << " translated into value " << integer << ".";
    logger->log(VRK::debug, line.str());
}

} // namespace

VRK::BaseData* LookupTableToIntSetDataConverter::convert(const VRK::BaseData& source) const
{
    const auto& table = DataCast::as<Tessaly::LookupTableData>(source).getValue();
    assert(table != 0 && "table != 0");
    std::set<int> keys;
    for (auto entry = table->getIterator(); entry.hasNext();) {
        const double key = entry.next().first;
        const double rounded = std::floor(key + 0.5);
        // The table's keys are reals of any size; a set holds only 32-bit integers.
        if (!DoubleToIntegerDataConverter::isInIntRange(rounded))
            raiseFailure("Failed to convert \"" + DoubleToIntegerDataConverter::describe(key)
                         + "\" to integer.");
        const int integer = static_cast<int>(rounded);
        logTranslation(key, integer);
        keys.insert(integer);
    }
    return new IntSetData(keys);
}

} // namespace Prim
