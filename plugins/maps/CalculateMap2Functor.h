#ifndef VRK_PLUGINS_MAPS_CALCULATEMAP2FUNCTOR_H
#define VRK_PLUGINS_MAPS_CALCULATEMAP2FUNCTOR_H

#include "plugins/maps/MapCalculationFunctor.h"

namespace Maps {

class CalculateMap2 : public MapCalculationFunctor {
public:
    CalculateMap2();
    CalculateMap2(const CalculateMap2&) = default;
    ~CalculateMap2() override;
};

} // namespace Maps

#endif
