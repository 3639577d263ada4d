#include "plugins/prim/flow/RepeatFunctor.h"

#include "base/run/ContainerFunctorUtils.h"
#include "plugins/prim/flow/ControlLog.h"
#include "plugins/prim/flow/LoopUtils.h"
#include "plugins/prim/values/numbers/NonNegativeIntType.h"

namespace Prim {

Repeat::Repeat()
    : ContainerFunctor("Repeat", "Execute contained functors a specified number of times.", nullptr)
{
    addInputPort("iterations", "Number of iterations.", NonNegativeIntType::getInstance(), false);
    addInternalOutputPort("step", "Current iteration step.", NonNegativeIntType::getInstance());
}

Repeat::~Repeat() = default;

void Repeat::runImpl()
{
    const int iterations = getInputPortValue<IntData>("iterations");
    if (iterations < 1)
        return;
    VRK::Task& task = LoopUtils::currentTask();
    for (int step = 1; step <= iterations; ++step) {
        task.checkCancellation();
        ControlLog::log(VRK::info, [&](std::ostream& line) {
            line << "\n===[ Running step " << step << " of " << iterations << " ]===\n";
        });
        ControlLog::log(VRK::debug, [&](std::ostream& line) {
            line << "Repeat: Running step " << step << " of " << iterations << ":";
        });
        setInternalOutputPortValue<NonNegativeIntType>("step", step);
        ContainerFunctor::runImpl();
        ControlLog::log(VRK::debug, [&](std::ostream& line) {
            line << "Repeat: Step " << step << " of " << iterations << " completed successfully.";
        });
    }
}

bool Repeat::isCompatible(VRK::Functor* functor) const
{
    assert(functor != 0 && "functor != 0");
    return true;
}

void Repeat::runContainerImpl() { VRK::ContainerFunctorUtils::runFunctorsInContainer(*this); }

} // namespace Prim
