#ifndef VRK_PLUGINS_PRIM_CARRIERS_INTFUNCTOR_H
#define VRK_PLUGINS_PRIM_CARRIERS_INTFUNCTOR_H

#include "plugins/prim/carriers/DataCarrierFunctor.h"

namespace Prim {

// Carries an integer typed in once.
class Int : public DataCarrierFunctor {
public:
    Int();
    Int(const Int&) = default;
    Int& operator=(const Int&) = default;
    ~Int() override;
};

} // namespace Prim

#endif
