#include "plugins/prim/PrimRegistrar.h"

#include "base/Plugin.h"

namespace Prim {

namespace {

void registerHostServices(PrimRegistrar&) {}

void registerFunctors(PrimRegistrar&) {}

void registerDataClasses(PrimRegistrar&) {}

void registerDataHolders(PrimRegistrar&) {}

void registerDataReaders(PrimRegistrar&) {}

void registerDataWriters(PrimRegistrar&) {}

void registerDataConverters(PrimRegistrar&) {}

} // namespace

} // namespace Prim

// The catalogue is filled in a fixed order; a refused entry is logged and the next
// one still registers.
extern "C" void registerPrimPlugin(VRK::Plugin& plugin)
{
    Prim::PrimRegistrar registrar(plugin.getFactoryFarm());
    Prim::registerHostServices(registrar);
    Prim::registerFunctors(registrar);
    Prim::registerDataClasses(registrar);
    Prim::registerDataHolders(registrar);
    Prim::registerDataReaders(registrar);
    Prim::registerDataWriters(registrar);
    Prim::registerDataConverters(registrar);
}

// Entries live as long as the process: there is nothing to undo.
extern "C" void unregisterPrimPlugin(VRK::Plugin&) {}
