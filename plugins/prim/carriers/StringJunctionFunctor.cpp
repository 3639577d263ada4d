#include "plugins/prim/carriers/StringJunctionFunctor.h"

#include "plugins/prim/carriers/JunctionUtils.h"
#include "plugins/prim/values/texts/StringType.h"

namespace Prim {

namespace {
const JunctionUtils::Ports ports = {"possibleString1", "possibleString2", "string",
                                    "String output from an execution pipeline.", "String picked."};
} // namespace

StringJunction::StringJunction()
    : VRK::Functor("StringJunction", "Pick one string from two execution pipelines.", nullptr)
{
    JunctionUtils::addPorts(*this, ports, StringType::getInstance());
}

StringJunction::~StringJunction() = default;

void StringJunction::runImpl() { JunctionUtils::forward<StringData>(*this, ports); }

} // namespace Prim
