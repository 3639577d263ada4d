#ifndef VRK_PLUGINS_PRIM_FILES_WORKDIRFUNCTOR_H
#define VRK_PLUGINS_PRIM_FILES_WORKDIRFUNCTOR_H

#include "base/graph/ContainerFunctor.h"

namespace Prim {

// Sets the folder that every filename inside it is relative to: it publishes the
// complete path of its folder on the internal output "workdir", then runs its contents.
// Its own folder, when relative, lies inside the work directory of an enclosing one.
class Workdir : public VRK::ContainerFunctor {
public:
    Workdir();
    Workdir(const Workdir&) = default;
    ~Workdir() override;

    void runImpl() override;
    bool isCompatible(VRK::Functor* functor) const override;
};

} // namespace Prim

#endif
