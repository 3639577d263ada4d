#include "plugins/prim/PrimRegistrar.h"

#include "base/Plugin.h"
#include "plugins/prim/BoolData.h"
#include "plugins/prim/BoolEditor.h"
#include "plugins/prim/DoubleData.h"
#include "plugins/prim/DoubleEditor.h"
#include "plugins/prim/FolderData.h"
#include "plugins/prim/FolderEditor.h"
#include "plugins/prim/IntData.h"
#include "plugins/prim/IntEditor.h"
#include "plugins/prim/IntSetData.h"
#include "plugins/prim/IntSetEditor.h"
#include "plugins/prim/LogTagData.h"
#include "plugins/prim/LogTagEditor.h"
#include "plugins/prim/NameData.h"
#include "plugins/prim/NameEditor.h"
#include "plugins/prim/NonNegativeIntData.h"
#include "plugins/prim/NonNegativeIntEditor.h"
#include "plugins/prim/PathData.h"
#include "plugins/prim/PathEditor.h"
#include "plugins/prim/PercentData.h"
#include "plugins/prim/PercentEditor.h"
#include "plugins/prim/PositiveIntData.h"
#include "plugins/prim/PositiveIntEditor.h"
#include "plugins/prim/PrimTypes.h"
#include "plugins/prim/StringData.h"
#include "plugins/prim/StringEditor.h"
#include "plugins/prim/WorkdirData.h"

namespace Prim {

namespace {

void registerHostServices(PrimRegistrar&) {}

void registerFunctors(PrimRegistrar&) {}

// The types come first, so that the host can list them before any script names one.
void registerDataClasses(PrimRegistrar& registrar)
{
    PrimTypes::instantiateAll();
    registrar.registerData<BoolData>();
    registrar.registerData<DoubleData>();
    registrar.registerData<FolderData>();
    registrar.registerData<IntData>();
    registrar.registerData<IntSetData>();
    registrar.registerData<LogTagData>();
    registrar.registerData<NameData>();
    registrar.registerData<NonNegativeIntData>();
    registrar.registerData<PathData>();
    registrar.registerData<PercentData>();
    registrar.registerData<PositiveIntData>();
    registrar.registerData<StringData>();
    registrar.registerData<WorkdirData>();
}

void registerDataHolders(PrimRegistrar& registrar)
{
    registrar.registerDataHolder<BoolEditor>();
    registrar.registerDataHolder<DoubleEditor>();
    registrar.registerDataHolder<FolderEditor>();
    registrar.registerDataHolder<IntEditor>();
    registrar.registerDataHolder<IntSetEditor>();
    registrar.registerDataHolder<LogTagEditor>();
    registrar.registerDataHolder<NameEditor>();
    registrar.registerDataHolder<NonNegativeIntEditor>();
    registrar.registerDataHolder<PathEditor>();
    registrar.registerDataHolder<PercentEditor>();
    registrar.registerDataHolder<PositiveIntEditor>();
    registrar.registerDataHolder<StringEditor>();
}

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
