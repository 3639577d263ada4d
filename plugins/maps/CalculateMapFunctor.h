#ifndef VRK_PLUGINS_MAPS_CALCULATEMAPFUNCTOR_H
#define VRK_PLUGINS_MAPS_CALCULATEMAPFUNCTOR_H

#include "plugins/maps/MapCalculationFunctor.h"

namespace Maps {

class CalculateMap : public MapCalculationFunctor {
public:
    CalculateMap();
    CalculateMap(const CalculateMap&) = default;
    ~CalculateMap() override;
};

} // namespace Maps

#endif
