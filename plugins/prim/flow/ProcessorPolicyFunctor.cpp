#include "plugins/prim/flow/ProcessorPolicyFunctor.h"

#include "base/run/ContainerFunctorUtils.h"
#include "base/task/ProcessorManager.h"
#include "plugins/prim/flow/ControlLog.h"
#include "plugins/prim/values/keywords/BoolType.h"
#include "plugins/prim/values/numbers/NonNegativeIntType.h"

namespace Prim {

ProcessorPolicy::ProcessorPolicy()
    : ContainerFunctor("ProcessorPolicy",
                       "Execute contained functors using a specified processor "
                       "policy.",
                       nullptr)
{
    addOptionalInputPort("maximumNumberOfProcessors",
                         "Maximum number of processors. Set 0 for unlimited.",
                         NonNegativeIntType::getInstance(), false, 0);
    addOptionalInputPort("forceSpecifiedNumberOfProcessors",
                         "Use strictly a specified number of processors.", BoolType::getInstance(),
                         false, 0);
}

ProcessorPolicy::~ProcessorPolicy() = default;

void ProcessorPolicy::runContainerImpl()
{
    const int count = getInputPortValue<NonNegativeIntData>("maximumNumberOfProcessors");
    const bool force = getInputPortValue<BoolData>("forceSpecifiedNumberOfProcessors");
    VRK::Processor& processor = VRK::ProcessorManager::Instance();
    const unsigned int found = processor.getProcessorCount();
    if ((count >= 1 && unsigned(count) <= found) || force) {
        ControlLog::log(VRK::debug, [&](std::ostream& line) {
            line << "ProcessorPolicy: Redefining processors to " << count << ".";
        });
        processor.setProcessorCount(unsigned(count));
    }
    try {
        ControlLog::singleStep("ProcessorPolicy", [this] {
            VRK::ContainerFunctorUtils::runFunctorsInContainer(*this);
        });
    } catch (...) {
        processor.setProcessorCount(found);
        throw;
    }
    processor.setProcessorCount(found);
}

} // namespace Prim
