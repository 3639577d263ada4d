#ifndef VRK_PLUGINS_MAPS_LOADLOOKUPTABLEFUNCTOR_H
#define VRK_PLUGINS_MAPS_LOADLOOKUPTABLEFUNCTOR_H

#include "plugins/prim/files/FilenamedFunctor.h"

namespace Maps {

// Reads a lookup table from comma-separated lines of a key and a value.
class LoadLookupTable : public Prim::FilenamedFunctor {
public:
    LoadLookupTable();
    LoadLookupTable(const LoadLookupTable&) = default;
    LoadLookupTable& operator=(const LoadLookupTable&) = default;
    ~LoadLookupTable() override;

    void runImpl() override;
};

} // namespace Maps

#endif
