#ifndef VRK_PLUGINS_MAPS_NAMEMAPFUNCTOR_H
#define VRK_PLUGINS_MAPS_NAMEMAPFUNCTOR_H

#include "plugins/maps/MapType.h"
#include "plugins/maps/NamedMapRegistratorType.h"
#include "plugins/prim/environment/NameBanneredHookFunctor.h"
#include "plugins/prim/environment/RegistratorFunctor.h"

namespace Maps {

// Names a map, for the container's named maps (#name).
class NameMap : public Prim::RegistratorFunctor<Prim::NameBanneredHookFunctor, MapType,
                                                NamedMapRegistratorType> {
public:
    NameMap();
    ~NameMap() override;
};

} // namespace Maps

#endif
