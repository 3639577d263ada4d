#ifndef VRK_FUZZ_FUZZSETUP_H
#define VRK_FUZZ_FUZZSETUP_H

#include "base/error/Exception.h"
#include "base/log/LogFilterHigherTags.h"
#include "base/log/Logger.h"
#include "base/plugin/FactoryFarmManager.h"
#include "base/plugin/Plugin.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

extern "C" void registerPrimPlugin(VRK::Plugin& plugin);
extern "C" void registerIoPlugin(VRK::Plugin& plugin);
extern "C" void registerCalcPlugin(VRK::Plugin& plugin);

namespace Fuzz {

// The plugins are linked into each target and registered as the host does after loading
// them, so that every functor, reader and writer of the examples is known. The log keeps
// to errors: registration lines and warnings would drown the fuzzer's own output.
inline void setUpOnce()
{
    static const bool done = [] {
        VRK::Logger::getCurrentThreadLogger()->setMainFilter(
            std::make_shared<VRK::LogFilterHigherTags>(VRK::error));
        VRK::Logger::setDefaultFilter(std::make_shared<VRK::LogFilterHigherTags>(VRK::error));
        const std::pair<const char*, void (*)(VRK::Plugin&)> plugins[] = {
            {"Prim", registerPrimPlugin}, {"Io", registerIoPlugin}, {"Calc", registerCalcPlugin}};
        for (const auto& [name, registerPlugin] : plugins) {
            VRK::Plugin plugin(name, "", VRK::FactoryFarmManager::Instance());
            registerPlugin(plugin);
        }
        return true;
    }();
    (void)done;
}

inline std::string textOf(const uint8_t* data, size_t size)
{
    return std::string(reinterpret_cast<const char*>(data), size);
}

// Runs `action`: the host's own exceptions mean that the input was refused with a message,
// which is what invalid input should get. Returns whether `action` went through.
template <class Action>
bool acceptedBy(Action action)
{
    try {
        action();
        return true;
    } catch (const VRK::Exception&) {
        return false;
    }
}

// A broken promise of the host that no sanitizer sees: the fuzzer keeps the input.
[[noreturn]] inline void fail(const std::string& what)
{
    std::fprintf(stderr, "finding: %s\n", what.c_str());
    std::abort();
}

} // namespace Fuzz

#endif
