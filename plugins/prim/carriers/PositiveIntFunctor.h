#ifndef VRK_PLUGINS_PRIM_CARRIERS_POSITIVEINTFUNCTOR_H
#define VRK_PLUGINS_PRIM_CARRIERS_POSITIVEINTFUNCTOR_H

#include "plugins/prim/carriers/DataCarrierFunctor.h"

namespace Prim {

// Carries a positive integer typed in once.
class PositiveInt : public DataCarrierFunctor {
public:
    PositiveInt();
    PositiveInt(const PositiveInt&) = default;
    PositiveInt& operator=(const PositiveInt&) = default;
    ~PositiveInt() override;
};

} // namespace Prim

#endif
