#include "plugins/maps/CalculateLookupTable2Functor.h"

namespace Maps {

CalculateLookupTable2::CalculateLookupTable2()
    : TableCalculationFunctor(
        "CalculateLookupTable2",
        "Calculates a lookup table from a formula evaluated for each key of its input \"table\", "
        "over that table and the tables and values registered inside it.",
        true)
{
}

CalculateLookupTable2::~CalculateLookupTable2() = default;

} // namespace Maps
