#include "plugins/prim/environment/NameValueFunctor.h"

#include "base/util/Singleton.h"
#include "plugins/prim/environment/NamedValueRegistratorType.h"
#include "plugins/prim/values/numbers/DoubleType.h"
#include "plugins/prim/values/texts/NameType.h"

namespace Prim {

NameValue::NameValue()
    : NameBanneredHookFunctor("NameValue", "Identify a value by assigning a name to it.",
                              "valueName", VRK::Singleton<NamedValueRegistratorType>::getInstance())
{
    addInputPort("value", "Value.", DoubleType::getInstance(), false);
    addInputPort("valueName", "Value name identifier.", NameType::getInstance(), false);
}

NameValue::~NameValue() = default;

} // namespace Prim
