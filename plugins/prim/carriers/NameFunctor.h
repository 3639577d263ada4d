#ifndef VRK_PLUGINS_PRIM_CARRIERS_NAMEFUNCTOR_H
#define VRK_PLUGINS_PRIM_CARRIERS_NAMEFUNCTOR_H

#include "plugins/prim/carriers/DataCarrierFunctor.h"

namespace Prim {

// Carries a name typed in once.
class Name : public DataCarrierFunctor {
public:
    Name();
    Name(const Name&) = default;
    Name& operator=(const Name&) = default;
    ~Name() override;
};

} // namespace Prim

#endif
