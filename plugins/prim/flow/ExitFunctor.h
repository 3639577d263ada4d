#ifndef VRK_PLUGINS_PRIM_FLOW_EXITFUNCTOR_H
#define VRK_PLUGINS_PRIM_FLOW_EXITFUNCTOR_H

#include "base/graph/Functor.h"

namespace Prim {

// Stops the whole run on purpose.
class Exit : public VRK::Functor {
public:
    Exit();
    Exit(const Exit&) = default;
    Exit& operator=(const Exit&) = default;
    ~Exit() override;

    [[noreturn]] void runImpl() override;
};

} // namespace Prim

#endif
