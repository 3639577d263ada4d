#include "plugins/prim/environment/NumberValueFunctor.h"

#include "base/util/Singleton.h"
#include "plugins/prim/environment/NumberedValueRegistratorType.h"
#include "plugins/prim/environment/RegistratorBanner.h"
#include "plugins/prim/values/numbers/DoubleType.h"

namespace Prim {

NumberValue::NumberValue()
    : NumberBanneredHookFunctor("NumberValue", "Identify a value by assigning a number to it.",
                                "valueNumber",
                                VRK::Singleton<NumberedValueRegistratorType>::getInstance())
{
    addValueAndNumberPorts(DoubleType::getInstance());
}

NumberValue::~NumberValue() = default;

std::string NumberValue::getBanner() const
{
    return "Value " + NumberBanneredHookFunctor::getBanner()
           + RegistratorBanner::realValue(requireInputPort("value"));
}

} // namespace Prim
