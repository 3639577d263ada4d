#include "apps/host/HostSession.h"

#include "base/log/LogFilterHigherTags.h"
#include "base/log/Logger.h"

HostSession::HostSession(VRK::LogTag level, const std::string& pluginDir,
                         const std::shared_ptr<VRK::LogSink>& sink)
{
    auto filter = std::make_shared<VRK::LogFilterHigherTags>(level);
    VRK::Logger::setDefaultFilter(filter);
    VRK::Logger::getCurrentThreadLogger()->setMainFilter(filter->clone());
    if (sink)
        VRK::Logger::addSink(sink);
    loader_.loadAll(VRK::PluginLoader::searchPath(pluginDir));
}

bool HostSession::reportPluginFailures(std::ostream& err, const std::string& program) const
{
    for (const auto& failure : loader_.getFailures())
        err << program << ": cannot load plugin " << failure << '\n';
    return loader_.getFailures().empty();
}
