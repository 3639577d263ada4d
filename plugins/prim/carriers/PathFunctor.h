#ifndef VRK_PLUGINS_PRIM_CARRIERS_PATHFUNCTOR_H
#define VRK_PLUGINS_PRIM_CARRIERS_PATHFUNCTOR_H

#include "plugins/prim/carriers/DataCarrierFunctor.h"

namespace Prim {

// Carries a file path typed in once.
class Path : public DataCarrierFunctor {
public:
    Path();
    Path(const Path&) = default;
    Path& operator=(const Path&) = default;
    ~Path() override;
};

} // namespace Prim

#endif
