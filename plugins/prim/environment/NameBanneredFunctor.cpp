#include "plugins/prim/environment/NameBanneredFunctor.h"

namespace Prim {

NameBanneredFunctor::~NameBanneredFunctor() = default;

} // namespace Prim
