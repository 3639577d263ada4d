#ifndef VRK_PLUGINS_PRIM_CARRIERS_STRINGFUNCTOR_H
#define VRK_PLUGINS_PRIM_CARRIERS_STRINGFUNCTOR_H

#include "plugins/prim/carriers/DataCarrierFunctor.h"

namespace Prim {

// Carries a string typed in once.
class String : public DataCarrierFunctor {
public:
    String();
    String(const String&) = default;
    String& operator=(const String&) = default;
    ~String() override;
};

} // namespace Prim

#endif
