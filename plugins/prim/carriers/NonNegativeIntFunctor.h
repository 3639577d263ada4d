#ifndef VRK_PLUGINS_PRIM_CARRIERS_NONNEGATIVEINTFUNCTOR_H
#define VRK_PLUGINS_PRIM_CARRIERS_NONNEGATIVEINTFUNCTOR_H

#include "plugins/prim/carriers/DataCarrierFunctor.h"

namespace Prim {

// Carries a non-negative integer typed in once.
class NonNegativeInt : public DataCarrierFunctor {
public:
    NonNegativeInt();
    NonNegativeInt(const NonNegativeInt&) = default;
    NonNegativeInt& operator=(const NonNegativeInt&) = default;
    ~NonNegativeInt() override;
};

} // namespace Prim

#endif
