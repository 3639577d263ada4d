#include "plugins/prim/StringJunctionFunctor.h"

#include "base/StrongInputPort.h"
#include "plugins/prim/JunctionUtils.h"
#include "plugins/prim/StringType.h"

namespace Prim {

namespace {
const char* const FirstInput = "possibleString1";
const char* const SecondInput = "possibleString2";
const char* const Output = "string";
} // namespace

StringJunction::StringJunction()
    : VRK::Functor("StringJunction", "Pick one string from two execution pipelines.", nullptr)
{
    const auto type = StringType::getInstance();
    addInputPort(
        VRK::StrongInputPort(FirstInput, "String output from an execution pipeline.", type));
    addInputPort(
        VRK::StrongInputPort(SecondInput, "String output from an execution pipeline.", type));
    addOutputPort(Output, "String picked.", type);
    setFlag(4, true);
}

StringJunction::~StringJunction() = default;

void StringJunction::runImpl()
{
    JunctionUtils::forward<StringData>(*this, FirstInput, SecondInput, Output);
}

} // namespace Prim
