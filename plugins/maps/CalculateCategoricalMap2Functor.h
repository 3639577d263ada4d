#ifndef VRK_PLUGINS_MAPS_CALCULATECATEGORICALMAP2FUNCTOR_H
#define VRK_PLUGINS_MAPS_CALCULATECATEGORICALMAP2FUNCTOR_H

#include "plugins/maps/MapCalculationFunctor.h"

namespace Maps {

class CalculateCategoricalMap2 : public MapCalculationFunctor {
public:
    CalculateCategoricalMap2();
    CalculateCategoricalMap2(const CalculateCategoricalMap2&) = default;
    ~CalculateCategoricalMap2() override;
};

} // namespace Maps

#endif
