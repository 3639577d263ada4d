#include "base/Script.h"

#include "base/ContainerFunctor.h"

#include <cassert>

namespace VRK {

namespace {
Functor* findIn(const FunctorContainer& container, const std::string& alias)
{
    for (const auto& functor : container.getFunctors()) {
        if (functor->getAlias() == alias)
            return functor.get();
        if (auto* inner = dynamic_cast<const ContainerFunctor*>(functor.get()))
            if (Functor* found = findIn(*inner, alias))
                return found;
    }
    return nullptr;
}
} // namespace

Script::Script() = default;

void Script::runLight(Functor* functor)
{
    assert(functor != 0 && "functor != 0");
    for (const auto& port : functor->getInputPorts()) {
        DataHolder* peer = port->getPeer();
        if (port->isBound() && !port->isFeedback() && !peer->hasData() && peer->getOwner()
            && peer->getOwner() != functor)
            runLight(peer->getOwner());
    }
    functor->run();
}

Script::~Script() = default;

Functor* Script::findFunctorByAlias(const std::string& alias) const
{
    return alias.empty() ? nullptr : findIn(*this, alias);
}

} // namespace VRK
