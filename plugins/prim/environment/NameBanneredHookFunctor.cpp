#include "plugins/prim/environment/NameBanneredHookFunctor.h"

#include "plugins/prim/environment/RegistratorBanner.h"

namespace Prim {

NameBanneredHookFunctor::NameBanneredHookFunctor(std::string_view name,
                                                 std::string_view description,
                                                 const std::string& namePort,
                                                 const std::shared_ptr<VRK::BaseType>& type)
    : VRK::HookFunctor(name, description, type), namePort_(namePort)
{
}

NameBanneredHookFunctor::~NameBanneredHookFunctor() = default;

bool NameBanneredHookFunctor::hasBanner() const
{
    return requireInputPort(namePort_).hasDataEditor();
}

std::string NameBanneredHookFunctor::getBanner() const
{
    return RegistratorBanner::name(requireInputPort(namePort_));
}

} // namespace Prim
