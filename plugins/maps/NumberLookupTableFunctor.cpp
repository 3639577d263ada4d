#include "plugins/maps/NumberLookupTableFunctor.h"

#include "base/util/Singleton.h"
#include "plugins/maps/NumberedLookupTableRegistratorType.h"
#include "plugins/prim/values/numbers/PositiveIntType.h"
#include "tessaly/images/LookupTableType.h"

namespace Maps {

NumberLookupTable::NumberLookupTable()
    : Prim::NumberBanneredHookFunctor(
        "NumberLookupTable", "Identify a table by assigning a number to it.", "tableNumber",
        VRK::Singleton<NumberedLookupTableRegistratorType>::getInstance())
{
    addInputPort("table", "Any table.", Tessaly::LookupTableType::getInstance(), false);
    addInputPort("tableNumber", "Table number identifier.", Prim::PositiveIntType::getInstance(),
                 false);
}

NumberLookupTable::~NumberLookupTable() = default;

std::string NumberLookupTable::getBanner() const
{
    return "Table " + Prim::NumberBanneredHookFunctor::getBanner();
}

} // namespace Maps
