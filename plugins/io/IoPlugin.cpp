#include "plugins/prim/registry/PrimRegistrar.h"

#include "base/parse/ScannerTypes.h"
#include "base/plugin/Plugin.h"
#include "base/util/Singleton.h"
#include "plugins/io/LoadTextFunctor.h"
#include "plugins/io/PrintStringFunctor.h"
#include "plugins/io/PrintValueFunctor.h"
#include "plugins/io/SaveTextFunctor.h"
#include "plugins/io/TextFileData.h"
#include "plugins/io/TextFileEditor.h"
#include "plugins/io/TextFileType.h"
#include "plugins/prim/files/FileKindRegistrar.h"
#include "plugins/prim/files/StringToFilenameDataConverter.h"

namespace {

// The text-file type with everything that reads, writes, copies and converts its values.
void registerTextFiles(Prim::PrimRegistrar& registrar)
{
    const std::string group = "Input/Output";
    VRK::Singleton<Io::TextFileType>::getInstance();
    Prim::FileKindRegistrar::registerKind<Io::TextFileKind>(registrar, group);
    registrar.registerDataConverter<Prim::StringToFilenameDataConverter<Io::TextFileData>>(
        group, "String", "TextFile");
}

} // namespace

// The host-side functors a modeller needs around Prim, registered through Prim's
// routines so that they log alike.
extern "C" void registerIoPlugin(VRK::Plugin& plugin)
{
    Prim::PrimRegistrar registrar(plugin.getFactoryFarm());
    registrar.registerFunctor<Io::LoadText>("LoadText", "Input/Output");
    registrar.registerFunctor<Io::PrintString>("PrintString", "Input/Output");
    registrar.registerFunctor<Io::PrintValue>("PrintValue", "Input/Output");
    registrar.registerFunctor<Io::SaveText>("SaveText", "Input/Output");
    registerTextFiles(registrar);
}

// Entries live as long as the process: there is nothing to undo.
extern "C" void unregisterIoPlugin(VRK::Plugin&) {}
