#include "plugins/prim/environment/NameBanneredFunctor.h"

#include "plugins/prim/environment/RegistratorBanner.h"

namespace Prim {

NameBanneredFunctor::NameBanneredFunctor(std::string_view name, std::string_view description,
                                         const std::string& namePort,
                                         const std::shared_ptr<VRK::BaseType>& type)
    : VRK::Functor(name, description, type), namePort_(namePort)
{
}

NameBanneredFunctor::~NameBanneredFunctor() = default;

bool NameBanneredFunctor::hasBanner() const { return requireInputPort(namePort_).hasDataEditor(); }

std::string NameBanneredFunctor::getBanner() const
{
    return RegistratorBanner::name(requireInputPort(namePort_));
}

} // namespace Prim
