#include "base/graph/FunctorUpdates.h"

#include "base/graph/ContainerFunctor.h"

#include <cassert>
#include <cctype>

namespace VRK {

std::string makeFunctorAlias(const std::string& name, int number)
{
    std::string alias = name;
    if (!alias.empty())
        alias[0] = static_cast<char>(std::tolower(static_cast<unsigned char>(alias[0])));
    return alias + std::to_string(number);
}

void updateFunctorAlias(const std::shared_ptr<Functor>& functor, int number)
{
    assert(functor != 0 && "the update is applied to a functor");
    functor->setAlias(makeFunctorAlias(functor->getName(), number));
}

void updateFunctorPortOwner(const std::shared_ptr<Functor>& functor)
{
    assert(functor != 0 && "the update is applied to a functor");
    for (const auto& port : functor->getInputPorts())
        port->setOwner(functor.get());
    for (const auto& port : functor->getOutputPorts())
        port->setOwner(functor.get());
    if (const ContainerFunctor* container = functor->asContainer()) {
        for (const auto& port : container->getInternalInputPorts())
            port->setOwner(functor.get());
        for (const auto& port : container->getInternalOutputPorts())
            port->setOwner(functor.get());
    }
}

} // namespace VRK
