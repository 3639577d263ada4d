#ifndef VRK_PLUGINS_MAPS_SAVELOOKUPTABLEFUNCTOR_H
#define VRK_PLUGINS_MAPS_SAVELOOKUPTABLEFUNCTOR_H

#include "plugins/prim/files/FilenamedFunctor.h"

namespace Maps {

// Writes a lookup table as comma-separated lines of a key and a value, through a
// temporary file beside it and a rename. It creates no folders.
class SaveLookupTable : public Prim::FilenamedFunctor {
public:
    SaveLookupTable();
    SaveLookupTable(const SaveLookupTable&) = default;
    SaveLookupTable& operator=(const SaveLookupTable&) = default;
    ~SaveLookupTable() override;

    void runImpl() override;
};

} // namespace Maps

#endif
