#ifndef VRK_BASE_PLUGIN_PLUGINLOADER_H
#define VRK_BASE_PLUGIN_PLUGINLOADER_H

#include "base/plugin/Plugin.h"

#include <boost/filesystem/path.hpp>

#include <string>
#include <vector>

namespace VRK {

// Finds lib<Name>.so files in plugin folders, loads each and calls its entry point
// register<Name>Plugin. Prim goes first, since companion plugins build on it.
class PluginLoader {
public:
    // The folders to search: `explicitDir` when given, else those of VRK_PLUGIN_PATH
    // (colon separated), else the build's plugin folder.
    static std::vector<boost::filesystem::path> searchPath(const std::string& explicitDir);

    // Loads every plugin found; one that fails is reported by path with the loader's
    // message in `failures`, and the others still load.
    void loadAll(const std::vector<boost::filesystem::path>& folders);
    void load(const boost::filesystem::path& library);

    const std::vector<Plugin>& getPlugins() const { return plugins_; }
    const std::vector<std::string>& getFailures() const { return failures_; }

private:
    std::vector<Plugin> plugins_;
    std::vector<std::string> failures_;
};

} // namespace VRK

#endif
