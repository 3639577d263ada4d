#include "plugins/maps/NumberedLookupTableRegistratorType.h"

namespace Maps {

NumberedLookupTableRegistratorType::NumberedLookupTableRegistratorType()
    : Prim::RegistratorType("numbered lookup table")
{
}

NumberedLookupTableRegistratorType::~NumberedLookupTableRegistratorType() = default;

} // namespace Maps
