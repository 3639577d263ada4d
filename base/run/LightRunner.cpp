#include "base/run/LightRunner.h"

#include "base/graph/Functor.h"
#include "base/graph/FunctorContainer.h"

namespace VRK {

LightRunner* LightRunner::of(const Functor& functor)
{
    FunctorContainer* container = functor.getContainer();
    while (FunctorContainer* parent = container ? container->getParentContainer() : nullptr)
        container = parent;
    return dynamic_cast<LightRunner*>(container);
}

} // namespace VRK
