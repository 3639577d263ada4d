#ifndef VRK_PLUGINS_MAPS_CALCULATELOOKUPTABLE2FUNCTOR_H
#define VRK_PLUGINS_MAPS_CALCULATELOOKUPTABLE2FUNCTOR_H

#include "plugins/maps/TableCalculationFunctor.h"

namespace Maps {

class CalculateLookupTable2 : public TableCalculationFunctor {
public:
    CalculateLookupTable2();
    CalculateLookupTable2(const CalculateLookupTable2&) = default;
    ~CalculateLookupTable2() override;
};

} // namespace Maps

#endif
