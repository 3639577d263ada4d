#ifndef VRK_PLUGINS_MAPS_NAMELOOKUPTABLEFUNCTOR_H
#define VRK_PLUGINS_MAPS_NAMELOOKUPTABLEFUNCTOR_H

#include "plugins/prim/environment/NameBanneredHookFunctor.h"

namespace Maps {

// Names a table, for the container's named tables (%name).
class NameLookupTable : public Prim::NameBanneredHookFunctor {
public:
    NameLookupTable();
    NameLookupTable(const NameLookupTable&) = default;
    NameLookupTable& operator=(const NameLookupTable&) = default;
    ~NameLookupTable() override;
};

} // namespace Maps

#endif
