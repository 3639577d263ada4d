#ifndef VRK_PLUGINS_MAPS_NUMBERMAPFUNCTOR_H
#define VRK_PLUGINS_MAPS_NUMBERMAPFUNCTOR_H

#include "plugins/maps/MapType.h"
#include "plugins/maps/NumberedMapRegistratorType.h"
#include "plugins/prim/environment/NumberBanneredHookFunctor.h"
#include "plugins/prim/environment/RegistratorFunctor.h"

namespace Maps {

// Names a map with a number, for the container's numbered maps ("m1" ...).
class NumberMap : public Prim::RegistratorFunctor<Prim::NumberBanneredHookFunctor, MapType,
                                                  NumberedMapRegistratorType> {
public:
    NumberMap();
    ~NumberMap() override;
};

} // namespace Maps

#endif
