#include "apps/vrk/HostSession.h"

#include "base/log/LogFilterHigherTags.h"
#include "base/log/Logger.h"
#include "base/log/StreamLogSink.h"

#include <iostream>
#include <memory>

HostSession::HostSession(VRK::LogTag level, const std::string& pluginDir)
{
    auto filter = std::make_shared<VRK::LogFilterHigherTags>(level);
    VRK::Logger::setDefaultFilter(filter);
    VRK::Logger::getCurrentThreadLogger()->setMainFilter(filter->clone());
    VRK::Logger::addSink(std::make_shared<VRK::StreamLogSink>(std::cout));
    loader_.loadAll(VRK::PluginLoader::searchPath(pluginDir));
}

bool HostSession::reportPluginFailures() const
{
    for (const auto& failure : loader_.getFailures())
        std::cerr << "vrk: cannot load plugin " << failure << '\n';
    return loader_.getFailures().empty();
}
