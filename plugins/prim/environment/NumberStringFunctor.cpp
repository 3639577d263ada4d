#include "plugins/prim/environment/NumberStringFunctor.h"

namespace Prim {

NumberString::NumberString() : RegistratorFunctor("NumberString", "string", "value") {}

NumberString::~NumberString() = default;

} // namespace Prim
