#include "plugins/prim/environment/NameBanneredHookFunctor.h"

#include "plugins/prim/values/texts/NameType.h"

namespace Prim {

NameBanneredHookFunctor::~NameBanneredHookFunctor() = default;

std::shared_ptr<VRK::BaseType> NameBanneredHookFunctor::getKeyType()
{
    return NameType::getInstance();
}

} // namespace Prim
