#ifndef VRK_PLUGINS_MAPS_NUMBERLOOKUPTABLEFUNCTOR_H
#define VRK_PLUGINS_MAPS_NUMBERLOOKUPTABLEFUNCTOR_H

#include "plugins/prim/environment/NumberBanneredHookFunctor.h"

namespace Maps {

// Names a table with a number, for the container's numbered tables ("t1" ...).
class NumberLookupTable : public Prim::NumberBanneredHookFunctor {
public:
    NumberLookupTable();
    NumberLookupTable(const NumberLookupTable&) = default;
    NumberLookupTable& operator=(const NumberLookupTable&) = default;
    ~NumberLookupTable() override;

    std::string getBanner() const override;
};

} // namespace Maps

#endif
