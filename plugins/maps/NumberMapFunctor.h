#ifndef VRK_PLUGINS_MAPS_NUMBERMAPFUNCTOR_H
#define VRK_PLUGINS_MAPS_NUMBERMAPFUNCTOR_H

#include "plugins/prim/environment/NumberBanneredHookFunctor.h"

namespace Maps {

// Names a map with a number, for the container's numbered maps ("m1" ...).
class NumberMap : public Prim::NumberBanneredHookFunctor {
public:
    NumberMap();
    NumberMap(const NumberMap&) = default;
    NumberMap& operator=(const NumberMap&) = default;
    ~NumberMap() override;

    std::string getBanner() const override;
};

} // namespace Maps

#endif
