#include "plugins/maps/NumberLookupTableFunctor.h"

namespace Maps {

NumberLookupTable::NumberLookupTable() : RegistratorFunctor("NumberLookupTable", "table", "table")
{
}

NumberLookupTable::~NumberLookupTable() = default;

} // namespace Maps
