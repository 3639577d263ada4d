#ifndef VRK_PLUGINS_MAPS_NAMEMAPFUNCTOR_H
#define VRK_PLUGINS_MAPS_NAMEMAPFUNCTOR_H

#include "plugins/prim/environment/NameBanneredHookFunctor.h"

namespace Maps {

// Names a map, for the container's named maps (#name).
class NameMap : public Prim::NameBanneredHookFunctor {
public:
    NameMap();
    NameMap(const NameMap&) = default;
    NameMap& operator=(const NameMap&) = default;
    ~NameMap() override;
};

} // namespace Maps

#endif
