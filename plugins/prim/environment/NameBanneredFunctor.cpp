#include "plugins/prim/environment/NameBanneredFunctor.h"

#include "plugins/prim/values/texts/NameType.h"

namespace Prim {

NameBanneredFunctor::~NameBanneredFunctor() = default;

std::shared_ptr<VRK::BaseType> NameBanneredFunctor::getKeyType() { return NameType::getInstance(); }

} // namespace Prim
