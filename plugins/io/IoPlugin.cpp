#include "plugins/prim/PrimRegistrar.h"

#include "base/plugin/Plugin.h"
#include "plugins/io/PrintStringFunctor.h"
#include "plugins/io/PrintValueFunctor.h"

// The host-side functors a modeller needs around Prim, registered through Prim's
// routines so that they log alike.
extern "C" void registerIoPlugin(VRK::Plugin& plugin)
{
    Prim::PrimRegistrar registrar(plugin.getFactoryFarm());
    registrar.registerFunctor<Io::PrintString>("PrintString", "Input/Output");
    registrar.registerFunctor<Io::PrintValue>("PrintValue", "Input/Output");
}

// Entries live as long as the process: there is nothing to undo.
extern "C" void unregisterIoPlugin(VRK::Plugin&) {}
