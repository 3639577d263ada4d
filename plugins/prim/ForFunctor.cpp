#include "plugins/prim/ForFunctor.h"

#include "base/run/ContainerFunctorUtils.h"
#include "plugins/prim/ControlLog.h"
#include "plugins/prim/LoopUtils.h"
#include "plugins/prim/NonNegativeIntType.h"
#include "plugins/prim/PositiveIntType.h"

#include <cstdint>

namespace Prim {

For::For() : ContainerFunctor("For", "Make a set of functors iterate a number of times.", nullptr)
{
    addInputPort("firstIterationStep", "Initial step or model iteration.",
                 NonNegativeIntType::getInstance(), false);
    addInputPort("lastIterationStep", "Last step or model iteration.",
                 NonNegativeIntType::getInstance(), false);
    addOptionalInputPort("stepIncrement", "Increment used to set next step or model iteration.",
                         PositiveIntType::getInstance(), false, 0);
    addInternalOutputPort("step", "Current step or model iteration.",
                          NonNegativeIntType::getInstance());
}

For::~For() = default;

void For::runImpl()
{
    const std::int32_t first = getInputPortValue<IntData>("firstIterationStep");
    const std::int32_t last = getInputPortValue<IntData>("lastIterationStep");
    const std::int32_t increment = getInputPortValue<IntData>("stepIncrement");
    if (first > last)
        return;
    VRK::Task& task = LoopUtils::currentTask();
    for (std::int32_t step = first; step <= last;
         step = std::int32_t(std::uint32_t(step) + std::uint32_t(increment))) {
        task.checkCancellation();
        ControlLog::log(VRK::info, [&](std::ostream& line) {
            line << "\n===[ Running step " << step << ", from " << first << " to " << last
                 << " ]===\n";
        });
        ControlLog::log(VRK::debug, [&](std::ostream& line) {
            line << "For: Running step " << step << ", from " << first << " to " << last << ":";
        });
        setInternalOutputPortValue<NonNegativeIntType>("step", step);
        ContainerFunctor::runImpl();
        ControlLog::log(VRK::debug, [&](std::ostream& line) {
            line << "For: Step " << step << ", from " << first << " to " << last
                 << ", completed successfully.";
        });
    }
}

bool For::isCompatible(VRK::Functor* functor) const
{
    assert(functor != 0 && "functor != 0");
    return true;
}

void For::runContainerImpl() { VRK::ContainerFunctorUtils::runFunctorsInContainer(*this); }

} // namespace Prim
