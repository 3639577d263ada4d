#include "base/ContainerFunctorUtils.h"

#include "base/ContainerFunctor.h"
#include "base/HookFunctor.h"

namespace VRK {

void ContainerFunctorUtils::runFunctorsInContainer(const ContainerFunctor& container, LogTag)
{
    for (const auto& functor : container.getFunctors())
        if (!dynamic_cast<HookFunctor*>(functor.get()))
            functor->run();
}

void ContainerFunctorUtils::runFunctorsInContainer(const ContainerFunctor& container)
{
    runFunctorsInContainer(container, debug);
}

} // namespace VRK
