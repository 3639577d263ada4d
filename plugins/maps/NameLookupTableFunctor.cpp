#include "plugins/maps/NameLookupTableFunctor.h"

namespace Maps {

NameLookupTable::NameLookupTable() : RegistratorFunctor("NameLookupTable", "table", "table") {}

NameLookupTable::~NameLookupTable() = default;

} // namespace Maps
