#include "plugins/prim/StringFunctor.h"

#include "plugins/prim/StringType.h"

namespace Prim {

String::String()
    : DataCarrierFunctor("String", "String declarer", nullptr)
{
    addCarrierPorts(StringType::getInstance(), "String constant", "String object");
}

String::~String() = default;

} // namespace Prim
