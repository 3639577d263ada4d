#ifndef VRK_PLUGINS_PRIM_CARRIERS_PERCENTFUNCTOR_H
#define VRK_PLUGINS_PRIM_CARRIERS_PERCENTFUNCTOR_H

#include "plugins/prim/carriers/DataCarrierFunctor.h"

namespace Prim {

// Carries a percentage typed in once.
class Percent : public DataCarrierFunctor {
public:
    Percent();
    Percent(const Percent&) = default;
    Percent& operator=(const Percent&) = default;
    ~Percent() override;
};

} // namespace Prim

#endif
