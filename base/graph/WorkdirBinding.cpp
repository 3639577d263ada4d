#include "base/graph/WorkdirBinding.h"

#include "base/data/BaseType.h"
#include "base/graph/ContainerFunctor.h"
#include "base/graph/FunctorWalk.h"

namespace VRK {

namespace {
const char* const WorkdirPortName = "workdir";
} // namespace

bool WorkdirBinding::isWorkdirPort(const InputPort& port)
{
    return port.getName() == WorkdirPortName && port.getType() && port.getType()->isWorkdir();
}

OutputPort* WorkdirBinding::findImplicitPeer(const InputPort& port)
{
    if (!isWorkdirPort(port) || !port.getOwner())
        return nullptr;
    for (FunctorContainer* container = port.getOwner()->getContainer(); container;
         container = container->getParentContainer()) {
        Functor* owner = container->asFunctor();
        ContainerFunctor* enclosing = owner ? owner->asContainer() : nullptr;
        if (!enclosing)
            continue;
        if (OutputPort* output = enclosing->getInternalOutputPort(WorkdirPortName))
            return output;
    }
    return nullptr;
}

bool WorkdirBinding::isImplicitlyBound(const InputPort& port)
{
    return port.isBound() && port.getPeer() == findImplicitPeer(port);
}

bool WorkdirBinding::givesWorkdir(const ContainerFunctor& container)
{
    return container.getInternalOutputPort(WorkdirPortName) != nullptr;
}

void WorkdirBinding::bindAll(const FunctorContainer& container)
{
    FunctorWalk::forEach(container, [](const Functor& functor) {
        for (const auto& port : functor.getInputPorts())
            if (!port->isBound())
                if (OutputPort* peer = findImplicitPeer(*port))
                    port->bind(peer);
    });
}

} // namespace VRK
