#include "plugins/prim/environment/NumberStringFunctor.h"

#include "base/util/Singleton.h"
#include "plugins/prim/environment/NumberedStringRegistratorType.h"
#include "plugins/prim/environment/RegistratorBanner.h"
#include "plugins/prim/values/texts/StringType.h"

namespace Prim {

NumberString::NumberString()
    : NumberBanneredHookFunctor("NumberString", "Identify a string by assigning a number to it.",
                                "valueNumber",
                                VRK::Singleton<NumberedStringRegistratorType>::getInstance())
{
    addValueAndNumberPorts(StringType::getInstance());
}

NumberString::~NumberString() = default;

std::string NumberString::getBanner() const
{
    return "Value " + NumberBanneredHookFunctor::getBanner()
           + RegistratorBanner::stringValue(requireInputPort("value"));
}

} // namespace Prim
