#ifndef VRK_PLUGINS_PRIM_CARRIERS_LOGTAGFUNCTOR_H
#define VRK_PLUGINS_PRIM_CARRIERS_LOGTAGFUNCTOR_H

#include "plugins/prim/carriers/DataCarrierFunctor.h"

namespace Prim {

// Carries a log level typed in once.
class LogTag : public DataCarrierFunctor {
public:
    LogTag();
    LogTag(const LogTag&) = default;
    LogTag& operator=(const LogTag&) = default;
    ~LogTag() override;
};

} // namespace Prim

#endif
