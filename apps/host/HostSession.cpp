#include "apps/host/HostSession.h"

#include "base/host/HostServices.h"
#include "base/log/LogFilterHigherTags.h"
#include "base/log/Logger.h"
#include "base/plugin/FactoryFarmManager.h"

HostSession::HostSession(VRK::LogTag level, const std::string& pluginDir,
                         const std::shared_ptr<VRK::LogSink>& sink)
{
    auto filter = std::make_shared<VRK::LogFilterHigherTags>(level);
    VRK::Logger::setDefaultFilter(filter);
    VRK::Logger::getCurrentThreadLogger()->setMainFilter(filter->clone());
    if (sink)
        VRK::Logger::addSink(sink);
    loader_.loadAll(VRK::PluginLoader::searchPath(pluginDir));
    // Scripts are read, verified, run and written even when no plugin loaded.
    VRK::HostServices::registerMissing(VRK::FactoryFarmManager::Instance());
}

bool HostSession::reportPluginFailures(std::ostream& err, const std::string& program) const
{
    for (const auto& failure : loader_.getFailures())
        err << program << ": cannot load plugin " << failure << '\n';
    return loader_.getFailures().empty();
}
