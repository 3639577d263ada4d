#ifndef VRK_PLUGINS_PRIM_CARRIERS_INTSETFUNCTOR_H
#define VRK_PLUGINS_PRIM_CARRIERS_INTSETFUNCTOR_H

#include "plugins/prim/carriers/DataCarrierFunctor.h"

namespace Prim {

// Carries a set of integers typed in once.
class IntSet : public DataCarrierFunctor {
public:
    IntSet();
    IntSet(const IntSet&) = default;
    IntSet& operator=(const IntSet&) = default;
    ~IntSet() override;
};

} // namespace Prim

#endif
