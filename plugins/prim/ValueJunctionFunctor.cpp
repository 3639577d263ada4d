#include "plugins/prim/ValueJunctionFunctor.h"

#include "base/StrongInputPort.h"
#include "plugins/prim/DoubleType.h"
#include "plugins/prim/JunctionUtils.h"

namespace Prim {

namespace {
const char* const FirstInput = "possibleValue1";
const char* const SecondInput = "possibleValue2";
const char* const Output = "value";
} // namespace

ValueJunction::ValueJunction()
    : VRK::Functor("ValueJunction", "Pick one value from two execution pipelines.", nullptr)
{
    const auto type = DoubleType::getInstance();
    addInputPort(VRK::StrongInputPort(FirstInput, "Value output from an execution pipeline", type));
    addInputPort(
        VRK::StrongInputPort(SecondInput, "Value output from an execution pipeline", type));
    addOutputPort(Output, "Value picked.", type);
    setFlag(4, true);
}

ValueJunction::~ValueJunction() = default;

void ValueJunction::runImpl()
{
    JunctionUtils::forward<DoubleData>(*this, FirstInput, SecondInput, Output);
}

} // namespace Prim
