#include "base/plugin/Plugin.h"

namespace VRK {

Plugin::Plugin(const std::string& name, const std::string& path, FactoryFarm& factoryFarm)
    : name_(name), path_(path), factoryFarm_(&factoryFarm)
{
}

} // namespace VRK
