#include "plugins/maps/NameLookupTableFunctor.h"

#include "base/util/Singleton.h"
#include "plugins/maps/NamedLookupTableRegistratorType.h"
#include "plugins/prim/values/texts/NameType.h"
#include "tessaly/images/LookupTableType.h"

namespace Maps {

NameLookupTable::NameLookupTable()
    : Prim::NameBanneredHookFunctor("NameLookupTable",
                                    "Identify a table by assigning a name to it.", "tableName",
                                    VRK::Singleton<NamedLookupTableRegistratorType>::getInstance())
{
    addInputPort("table", "Table.", Tessaly::LookupTableType::getInstance(), false);
    addInputPort("tableName", "Table name identifier.", Prim::NameType::getInstance(), false);
}

NameLookupTable::~NameLookupTable() = default;

} // namespace Maps
