#include "plugins/prim/environment/NumberBanneredHookFunctor.h"

#include "plugins/prim/environment/RegistratorBanner.h"
#include "plugins/prim/values/numbers/PositiveIntType.h"

namespace Prim {

NumberBanneredHookFunctor::NumberBanneredHookFunctor(std::string_view name,
                                                     std::string_view description,
                                                     const std::string& numberPort,
                                                     const std::shared_ptr<VRK::BaseType>& type)
    : VRK::HookFunctor(name, description, type), numberPort_(numberPort)
{
}

NumberBanneredHookFunctor::~NumberBanneredHookFunctor() = default;

void NumberBanneredHookFunctor::addValueAndNumberPorts(
    const std::shared_ptr<VRK::BaseType>& valueType)
{
    addInputPort("value", "Any value.", valueType, false);
    addInputPort(numberPort_, "Value number identifier.", PositiveIntType::getInstance(), false);
}

bool NumberBanneredHookFunctor::hasBanner() const
{
    return requireInputPort(numberPort_).hasDataEditor();
}

std::string NumberBanneredHookFunctor::getBanner() const
{
    return RegistratorBanner::number(requireInputPort(numberPort_));
}

} // namespace Prim
