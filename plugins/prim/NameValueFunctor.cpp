#include "plugins/prim/NameValueFunctor.h"

#include "base/util/Singleton.h"
#include "plugins/prim/DoubleType.h"
#include "plugins/prim/NameType.h"
#include "plugins/prim/NamedValueRegistratorType.h"

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
