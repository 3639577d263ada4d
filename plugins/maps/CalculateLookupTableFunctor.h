#ifndef VRK_PLUGINS_MAPS_CALCULATELOOKUPTABLEFUNCTOR_H
#define VRK_PLUGINS_MAPS_CALCULATELOOKUPTABLEFUNCTOR_H

#include "plugins/maps/TableCalculationFunctor.h"

namespace Maps {

class CalculateLookupTable : public TableCalculationFunctor {
public:
    CalculateLookupTable();
    CalculateLookupTable(const CalculateLookupTable&) = default;
    ~CalculateLookupTable() override;
};

} // namespace Maps

#endif
