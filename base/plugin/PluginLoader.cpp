#include "base/plugin/PluginLoader.h"

#include "base/plugin/FactoryFarmManager.h"

#include <boost/filesystem/operations.hpp>

#include <algorithm>
#include <cstdlib>
#include <dlfcn.h>

namespace VRK {

namespace fs = boost::filesystem;

namespace {

using EntryPoint = void (*)(Plugin&);

// "libPrim.so" names the plugin "Prim"; other files are not plugins.
std::string pluginName(const fs::path& file)
{
    const std::string leaf = file.filename().string();
    if (leaf.size() <= 6 || leaf.compare(0, 3, "lib") != 0 || file.extension() != ".so")
        return std::string();
    return leaf.substr(3, leaf.size() - 6);
}

std::vector<fs::path> librariesIn(const fs::path& folder)
{
    std::vector<fs::path> libraries;
    boost::system::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error))
        if (!pluginName(entry->path()).empty())
            libraries.push_back(entry->path());
    std::sort(libraries.begin(), libraries.end(), [](const fs::path& a, const fs::path& b) {
        return std::make_pair(pluginName(a) != "Prim", pluginName(a))
               < std::make_pair(pluginName(b) != "Prim", pluginName(b));
    });
    return libraries;
}

} // namespace

std::vector<fs::path> PluginLoader::searchPath(const std::string& explicitDir)
{
    if (!explicitDir.empty())
        return {fs::path(explicitDir)};
    std::vector<fs::path> folders;
    if (const char* variable = std::getenv("VRK_PLUGIN_PATH")) {
        std::string list = variable;
        for (size_t start = 0; start <= list.size();) {
            size_t end = std::min(list.find(':', start), list.size());
            if (end > start)
                folders.emplace_back(list.substr(start, end - start));
            start = end + 1;
        }
    }
    if (folders.empty())
        folders.emplace_back(VRK_DEFAULT_PLUGIN_DIR);
    return folders;
}

void PluginLoader::loadAll(const std::vector<fs::path>& folders)
{
    for (const auto& folder : folders)
        for (const auto& library : librariesIn(folder))
            load(library);
}

void PluginLoader::load(const fs::path& library)
{
    const std::string name = pluginName(library);
    void* handle = ::dlopen(library.c_str(), RTLD_NOW | RTLD_GLOBAL);
    if (!handle) {
        failures_.push_back(library.string() + ": " + ::dlerror());
        return;
    }
    ::dlerror();
    auto entry = reinterpret_cast<EntryPoint>(::dlsym(handle, ("register" + name + "Plugin").c_str()));
    if (const char* message = ::dlerror()) {
        failures_.push_back(library.string() + ": " + message);
        return;
    }
    plugins_.emplace_back(name, library.string(), FactoryFarmManager::Instance());
    entry(plugins_.back());
}

} // namespace VRK
