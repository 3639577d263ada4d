#ifndef VRK_PLUGINS_MAPS_NAMELOOKUPTABLEFUNCTOR_H
#define VRK_PLUGINS_MAPS_NAMELOOKUPTABLEFUNCTOR_H

#include "plugins/maps/NamedLookupTableRegistratorType.h"
#include "plugins/prim/environment/NameBanneredHookFunctor.h"
#include "plugins/prim/environment/RegistratorFunctor.h"
#include "tessaly/images/LookupTableType.h"

namespace Maps {

// Names a table, for the container's named tables (%name).
class NameLookupTable
    : public Prim::RegistratorFunctor<Prim::NameBanneredHookFunctor, Tessaly::LookupTableType,
                                      NamedLookupTableRegistratorType> {
public:
    NameLookupTable();
    ~NameLookupTable() override;
};

} // namespace Maps

#endif
