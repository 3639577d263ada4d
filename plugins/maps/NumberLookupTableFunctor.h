#ifndef VRK_PLUGINS_MAPS_NUMBERLOOKUPTABLEFUNCTOR_H
#define VRK_PLUGINS_MAPS_NUMBERLOOKUPTABLEFUNCTOR_H

#include "plugins/maps/NumberedLookupTableRegistratorType.h"
#include "plugins/prim/environment/NumberBanneredHookFunctor.h"
#include "plugins/prim/environment/RegistratorFunctor.h"
#include "tessaly/images/LookupTableType.h"

namespace Maps {

// Names a table with a number, for the container's numbered tables ("t1" ...).
class NumberLookupTable
    : public Prim::RegistratorFunctor<Prim::NumberBanneredHookFunctor, Tessaly::LookupTableType,
                                      NumberedLookupTableRegistratorType> {
public:
    NumberLookupTable();
    ~NumberLookupTable() override;
};

} // namespace Maps

#endif
