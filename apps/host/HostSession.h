#ifndef VRK_APPS_HOST_HOSTSESSION_H
#define VRK_APPS_HOST_HOSTSESSION_H

#include "base/log/LogSink.h"
#include "base/log/LogTag.h"
#include "base/plugin/PluginLoader.h"

#include <memory>
#include <ostream>
#include <string>

// The host as a program sets it up once: log lines kept under the chosen level and
// written to `sink` (none: kept nowhere until a sink is added), then every plugin
// loaded from `pluginDir`, or from the usual folders when it is empty.
class HostSession {
public:
    HostSession(VRK::LogTag level, const std::string& pluginDir,
                const std::shared_ptr<VRK::LogSink>& sink);

    // Reports plugins that failed to load on `err`; true when all loaded.
    bool reportPluginFailures(std::ostream& err, const std::string& program) const;
    const VRK::PluginLoader& getLoader() const { return loader_; }

private:
    VRK::PluginLoader loader_;
};

#endif
