#include "plugins/maps/CalculateLookupTableFunctor.h"

namespace Maps {

CalculateLookupTable::CalculateLookupTable()
    : TableCalculationFunctor(
        "CalculateLookupTable",
        "Calculates a lookup table from a formula evaluated for each key of the first table it "
        "names, over the tables and values registered inside it.",
        false)
{
}

CalculateLookupTable::~CalculateLookupTable() = default;

} // namespace Maps
