#ifndef VRK_BASE_PLUGIN_PLUGIN_H
#define VRK_BASE_PLUGIN_PLUGIN_H

#include <string>

namespace VRK {

class FactoryFarm;

// The host's record of a loaded plugin, handed to its entry points.
class Plugin {
public:
    Plugin(const std::string& name, const std::string& path, FactoryFarm& factoryFarm);

    const std::string& getName() const { return name_; }
    const std::string& getPath() const { return path_; }
    FactoryFarm& getFactoryFarm() const { return *factoryFarm_; }

private:
    std::string name_;
    std::string path_;
    FactoryFarm* factoryFarm_;
};

} // namespace VRK

#endif
