#ifndef VRK_PLUGINS_PRIM_CARRIERS_BOOLFUNCTOR_H
#define VRK_PLUGINS_PRIM_CARRIERS_BOOLFUNCTOR_H

#include "plugins/prim/carriers/DataCarrierFunctor.h"

namespace Prim {

// Carries a truth value typed in once.
class Bool : public DataCarrierFunctor {
public:
    Bool();
    Bool(const Bool&) = default;
    Bool& operator=(const Bool&) = default;
    ~Bool() override;
};

} // namespace Prim

#endif
