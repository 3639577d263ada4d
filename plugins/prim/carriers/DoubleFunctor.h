#ifndef VRK_PLUGINS_PRIM_CARRIERS_DOUBLEFUNCTOR_H
#define VRK_PLUGINS_PRIM_CARRIERS_DOUBLEFUNCTOR_H

#include "plugins/prim/carriers/DataCarrierFunctor.h"

namespace Prim {

// Carries a real number typed in once.
class Double : public DataCarrierFunctor {
public:
    Double();
    Double(const Double&) = default;
    Double& operator=(const Double&) = default;
    ~Double() override;
};

} // namespace Prim

#endif
