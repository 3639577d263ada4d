#include "base/graph/PortScope.h"

#include "base/graph/ContainerFunctor.h"

namespace VRK {

bool PortScope::isInternalInput(const InputPort& port)
{
    const ContainerFunctor* owner = port.getOwner() ? port.getOwner()->asContainer() : nullptr;
    return owner && owner->getInternalInputPort(port.getName()) == &port;
}

bool PortScope::isInternalOutput(const DataHolder& port)
{
    const ContainerFunctor* owner = port.getOwner() ? port.getOwner()->asContainer() : nullptr;
    return owner && owner->getInternalOutputPort(port.getName()) == &port;
}

FunctorContainer* PortScope::getReadingContainer(const InputPort& port)
{
    Functor* owner = port.getOwner();
    if (!owner)
        return nullptr;
    if (isInternalInput(port))
        return owner->asContainer();
    return owner->getContainer();
}

bool PortScope::isWithin(const FunctorContainer* container, const Functor& functor)
{
    for (; container; container = container->getParentContainer())
        if (container->asFunctor() == &functor)
            return true;
    return false;
}

std::vector<InputPort*> PortScope::getAllInputs(const Functor& functor)
{
    std::vector<InputPort*> inputs;
    for (const auto& port : functor.getInputPorts())
        inputs.push_back(port.get());
    if (auto* container = functor.asContainer())
        for (const auto& port : container->getInternalInputPorts())
            inputs.push_back(port.get());
    return inputs;
}

} // namespace VRK
