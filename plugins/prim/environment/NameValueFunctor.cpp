#include "plugins/prim/environment/NameValueFunctor.h"

namespace Prim {

NameValue::NameValue() : RegistratorFunctor("NameValue", "value", "value") {}

NameValue::~NameValue() = default;

} // namespace Prim
