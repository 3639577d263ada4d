#include "base/plugin/Plugin.h"
#include "plugins/calc/CalculateValueFunctor.h"
#include "plugins/prim/registry/PrimRegistrar.h"

// Registered through Prim's routines, so that it logs alike.
extern "C" void registerCalcPlugin(VRK::Plugin& plugin)
{
    Prim::PrimRegistrar registrar(plugin.getFactoryFarm());
    registrar.registerFunctor<Calc::CalculateValue>("CalculateValue", "Map Algebra");
}

extern "C" void unregisterCalcPlugin(VRK::Plugin&) {}
