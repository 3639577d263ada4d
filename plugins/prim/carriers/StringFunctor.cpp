#include "plugins/prim/carriers/StringFunctor.h"

#include "plugins/prim/values/texts/StringType.h"

namespace Prim {

String::String()
    : DataCarrierFunctor("String", "String declarer", nullptr)
{
    addCarrierPorts(StringType::getInstance(), "String constant", "String object");
}

String::~String() = default;

} // namespace Prim
