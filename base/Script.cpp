#include "base/Script.h"

#include "base/ContainerFunctor.h"

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

Script::~Script() = default;

Functor* Script::findFunctorByAlias(const std::string& alias) const
{
    return alias.empty() ? nullptr : findIn(*this, alias);
}

} // namespace VRK
