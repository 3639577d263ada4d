#include "plugins/prim/environment/NumberBanneredHookFunctor.h"

#include "plugins/prim/values/numbers/PositiveIntType.h"

namespace Prim {

NumberBanneredHookFunctor::~NumberBanneredHookFunctor() = default;

std::shared_ptr<VRK::BaseType> NumberBanneredHookFunctor::getKeyType()
{
    return PositiveIntType::getInstance();
}

} // namespace Prim
