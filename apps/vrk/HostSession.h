#ifndef VRK_APPS_VRK_HOSTSESSION_H
#define VRK_APPS_VRK_HOSTSESSION_H

#include "base/log/LogTag.h"
#include "base/plugin/PluginLoader.h"

#include <string>

// The host as the command line sets it up: log lines to standard output under the
// chosen level, then every plugin loaded.
class HostSession {
public:
    HostSession(VRK::LogTag level, const std::string& pluginDir);

    // Reports plugins that failed to load on standard error; true when all loaded.
    bool reportPluginFailures() const;
    const VRK::PluginLoader& getLoader() const { return loader_; }

private:
    VRK::PluginLoader loader_;
};

#endif
