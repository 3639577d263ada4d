#ifndef VRK_TESTS_SUPPORT_PRIMREGISTRATION_H
#define VRK_TESTS_SUPPORT_PRIMREGISTRATION_H

#include "base/plugin/FactoryFarmManager.h"
#include "base/plugin/Plugin.h"

#include <mutex>

extern "C" void registerPrimPlugin(VRK::Plugin& plugin);

namespace VRK {
namespace Testing {

// Registers the Prim plugin, linked into the test, in the process's factory farm once,
// as the host does after loading it: functors, readers and writers become available
// by name.
inline void registerPrimOnce()
{
    static std::once_flag once;
    std::call_once(once, [] {
        Plugin plugin("Prim", "", FactoryFarmManager::Instance());
        registerPrimPlugin(plugin);
    });
}

} // namespace Testing
} // namespace VRK

#endif
