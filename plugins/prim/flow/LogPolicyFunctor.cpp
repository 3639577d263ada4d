#include "plugins/prim/flow/LogPolicyFunctor.h"

#include "base/log/LogFilterHigherTags.h"
#include "base/run/ContainerFunctorUtils.h"
#include "plugins/prim/flow/ControlLog.h"
#include "plugins/prim/values/keywords/BoolType.h"
#include "plugins/prim/values/keywords/LogTagEditor.h"
#include "plugins/prim/values/keywords/LogTagType.h"

namespace Prim {

LogPolicy::LogPolicy()
    : ContainerFunctor("LogPolicy", "Execute contained functors, setting maximum log level.",
                       nullptr)
{
    auto* maximumLogLevel =
        dynamic_cast<LogTagEditor*>(addOptionalInputPort("maximumLogLevel", "Maximum log Level.",
                                                         LogTagType::getInstance(), false, 0)
                                        .get());
    assert(maximumLogLevel != 0 && "maximumLogLevel != 0");
    maximumLogLevel->setLogTag(VRK::trace);
    addOptionalInputPort("forceSpecifiedLogLevel", "Only the specified maximum level is reported.",
                         BoolType::getInstance(), false, 0);
}

LogPolicy::~LogPolicy() = default;

void LogPolicy::runContainerImpl()
{
    const VRK::LogTag level = getInputPortValue<LogTagData>("maximumLogLevel");
    const bool force = getInputPortValue<BoolData>("forceSpecifiedLogLevel");
    VRK::Logger* logger = VRK::Logger::getCurrentThreadLogger();
    const std::shared_ptr<VRK::LogFilter> filter = logger->getMainFilter();
    assert(filter != 0 && "filter != 0");
    auto* current = dynamic_cast<const VRK::LogFilterHigherTags*>(filter.get());
    if ((current && int(current->getTag()) >= int(level)) || force) {
        ControlLog::log(VRK::debug, [&](std::ostream& line) {
            line << "LogPolicy: Temporarily redefining log level to " << level << ".";
        });
        auto filter3 = std::make_shared<VRK::LogFilterHigherTags>(level);
        assert(filter3 && "filter3");
        logger->setMainFilter(filter3);
    }
    try {
        ControlLog::singleStep(
            "LogPolicy", [this] { VRK::ContainerFunctorUtils::runFunctorsInContainer(*this); });
    } catch (...) {
        logger->setMainFilter(filter);
        throw;
    }
    logger->setMainFilter(filter);
}

} // namespace Prim
