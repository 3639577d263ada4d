#include "base/plugin/Plugin.h"
#include "base/util/Properties.h"

// A plugin for the loader's tests: it only leaves a trace that it was called.
extern "C" void registerTestGoodPlugin(VRK::Plugin& plugin)
{
    static VRK::Properties calls;
    calls.setProperty("loaded", plugin.getPath());
}
