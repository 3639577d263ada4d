#ifndef VRK_BENCH_SCRIPTSETUP_H
#define VRK_BENCH_SCRIPTSETUP_H

#include "base/log/LogFilterHigherTags.h"
#include "base/log/Logger.h"
#include "base/plugin/FactoryFarmManager.h"
#include "base/plugin/Plugin.h"
#include "base/script/Script.h"
#include "base/script/text/DefaultScriptReader.h"

#include <memory>
#include <sstream>
#include <string>

namespace Bench {

// Errors only, on this thread and on those to come, so that loop banners cost nothing.
inline void quietLog()
{
    VRK::Logger::getCurrentThreadLogger()->setMainFilter(
        std::make_shared<VRK::LogFilterHigherTags>(VRK::error));
    VRK::Logger::setDefaultFilter(std::make_shared<VRK::LogFilterHigherTags>(VRK::error));
}

// Registers a plugin linked into the program, as the host does after loading one.
inline void registerLinkedPlugin(const std::string& name, void (*registerPlugin)(VRK::Plugin&))
{
    VRK::Plugin plugin(name, "", VRK::FactoryFarmManager::Instance());
    registerPlugin(plugin);
}

inline std::shared_ptr<VRK::Script> readScript(const std::string& text)
{
    auto script = std::make_shared<VRK::Script>();
    std::istringstream in(text);
    VRK::DefaultScriptReader().read(script.get(), in, "bench.vrk");
    return script;
}

} // namespace Bench

#endif
