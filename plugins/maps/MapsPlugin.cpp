#include "base/parse/ScannerTypes.h"
#include "base/plugin/Plugin.h"
#include "base/util/Singleton.h"
#include "plugins/maps/CalculateCategoricalMap2Functor.h"
#include "plugins/maps/CalculateCategoricalMapFunctor.h"
#include "plugins/maps/CalculateLookupTable2Functor.h"
#include "plugins/maps/CalculateLookupTableFunctor.h"
#include "plugins/maps/CalculateMap2Functor.h"
#include "plugins/maps/CalculateMapFunctor.h"
#include "plugins/maps/LoadLookupTableFunctor.h"
#include "plugins/maps/LoadMapFunctor.h"
#include "plugins/maps/MapData.h"
#include "plugins/maps/MapFileData.h"
#include "plugins/maps/MapFileEditor.h"
#include "plugins/maps/MapFileType.h"
#include "plugins/maps/MapType.h"
#include "plugins/maps/MuxMapFunctor.h"
#include "plugins/maps/NameLookupTableFunctor.h"
#include "plugins/maps/NameMapFunctor.h"
#include "plugins/maps/NamedLookupTableRegistratorType.h"
#include "plugins/maps/NamedMapRegistratorType.h"
#include "plugins/maps/NumberLookupTableFunctor.h"
#include "plugins/maps/NumberMapFunctor.h"
#include "plugins/maps/NumberedLookupTableRegistratorType.h"
#include "plugins/maps/NumberedMapRegistratorType.h"
#include "plugins/maps/SaveLookupTableFunctor.h"
#include "plugins/maps/SaveMapFunctor.h"
#include "plugins/maps/TableFileData.h"
#include "plugins/maps/TableFileEditor.h"
#include "plugins/maps/TableFileType.h"
#include "plugins/prim/files/FileKindRegistrar.h"
#include "plugins/prim/files/StringToFilenameDataConverter.h"
#include "plugins/prim/registry/PrimRegistrar.h"
#include "tessaly/images/LookupTableData.h"
#include "tessaly/images/LookupTableType.h"

namespace {

const char* const InputOutput = "Input/Output";

// Maps and tables are made by functors only: their data is copied, never typed in.
void registerTypes(Prim::PrimRegistrar& registrar)
{
    Maps::MapType::getInstance();
    Tessaly::LookupTableType::getInstance();
    VRK::Singleton<Maps::NumberedMapRegistratorType>::getInstance();
    VRK::Singleton<Maps::NamedMapRegistratorType>::getInstance();
    VRK::Singleton<Maps::NumberedLookupTableRegistratorType>::getInstance();
    VRK::Singleton<Maps::NamedLookupTableRegistratorType>::getInstance();
    Maps::MapFileType::getInstance();
    Maps::TableFileType::getInstance();
    registrar.registerData<Maps::MapData>();
    registrar.registerData<Tessaly::LookupTableData>();
    Prim::FileKindRegistrar::registerKind<Maps::MapFileKind>(registrar, InputOutput);
    Prim::FileKindRegistrar::registerKind<Maps::TableFileKind>(registrar, InputOutput);
    // Names built by CreateString or a numbered registrator feed the file inputs.
    registrar.registerDataConverter<Prim::StringToFilenameDataConverter<Maps::MapFileData>>(
        InputOutput, "String", "MapFile");
    registrar.registerDataConverter<Prim::StringToFilenameDataConverter<Maps::TableFileData>>(
        InputOutput, "String", "TableFile");
}

void registerFunctors(Prim::PrimRegistrar& registrar)
{
    const std::string algebra = "Map Algebra";
    const std::string supplement = "Map Algebra (Suppl.)";
    registrar.registerFunctor<Maps::CalculateCategoricalMap>("CalculateCategoricalMap", algebra);
    registrar.registerFunctor<Maps::CalculateCategoricalMap2>("CalculateCategoricalMap2", algebra);
    registrar.registerFunctor<Maps::CalculateLookupTable>("CalculateLookupTable", algebra);
    registrar.registerFunctor<Maps::CalculateLookupTable2>("CalculateLookupTable2", algebra);
    registrar.registerFunctor<Maps::CalculateMap>("CalculateMap", algebra);
    registrar.registerFunctor<Maps::CalculateMap2>("CalculateMap2", algebra);
    registrar.registerFunctor<Maps::LoadLookupTable>("LoadLookupTable", InputOutput);
    registrar.registerFunctor<Maps::LoadMap>("LoadMap", InputOutput);
    registrar.registerFunctor<Maps::MuxMap>("MuxMap", "Control");
    registrar.registerFunctor<Maps::NameLookupTable>("NameLookupTable", supplement);
    registrar.registerFunctor<Maps::NameMap>("NameMap", supplement);
    registrar.registerFunctor<Maps::NumberLookupTable>("NumberLookupTable", supplement);
    registrar.registerFunctor<Maps::NumberMap>("NumberMap", supplement);
    registrar.registerFunctor<Maps::SaveLookupTable>("SaveLookupTable", InputOutput);
    registrar.registerFunctor<Maps::SaveMap>("SaveMap", InputOutput);
}

} // namespace

// Raster maps and lookup tables as data, registered through Prim's routines so that
// they log alike.
extern "C" void registerMapsPlugin(VRK::Plugin& plugin)
{
    Prim::PrimRegistrar registrar(plugin.getFactoryFarm());
    registerFunctors(registrar);
    registerTypes(registrar);
}

// Entries live as long as the process: there is nothing to undo.
extern "C" void unregisterMapsPlugin(VRK::Plugin&) {}
