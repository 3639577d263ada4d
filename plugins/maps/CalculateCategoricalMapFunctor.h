#ifndef VRK_PLUGINS_MAPS_CALCULATECATEGORICALMAPFUNCTOR_H
#define VRK_PLUGINS_MAPS_CALCULATECATEGORICALMAPFUNCTOR_H

#include "plugins/maps/MapCalculationFunctor.h"

namespace Maps {

class CalculateCategoricalMap : public MapCalculationFunctor {
public:
    CalculateCategoricalMap();
    CalculateCategoricalMap(const CalculateCategoricalMap&) = default;
    ~CalculateCategoricalMap() override;
};

} // namespace Maps

#endif
