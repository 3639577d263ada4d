#include "plugins/prim/environment/NumberValueFunctor.h"

namespace Prim {

NumberValue::NumberValue() : RegistratorFunctor("NumberValue", "value", "value") {}

NumberValue::~NumberValue() = default;

} // namespace Prim
