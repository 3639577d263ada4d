#ifndef VRK_PLUGINS_PRIM_FILES_FILEKINDREGISTRAR_H
#define VRK_PLUGINS_PRIM_FILES_FILEKINDREGISTRAR_H

#include "base/parse/ScannerTypes.h"
#include "plugins/prim/files/FileKindReader.h"
#include "plugins/prim/files/FilenameWriter.h"
#include "plugins/prim/registry/PrimRegistrar.h"

#include <string>

namespace Prim {

// Registers the names of a file kind (see FileKind) with what reads and writes them: the
// data, its editor, a reader for each scanner and the filename writer, in this order,
// under the kind's type name and `group`.
class FileKindRegistrar {
public:
    template <class KindT>
    static void registerKind(PrimRegistrar& registrar, const std::string& group)
    {
        registrar.registerData<typename KindT::Data>();
        registrar.registerDataHolder<typename KindT::Editor>();
        registrar.registerDataReader<FileKindReader<KindT, VRK::ScriptScanner>, VRK::ScriptScanner>(
            KindT::name, group, VRK::ScriptScannerName);
        registrar.registerDataReader<FileKindReader<KindT, VRK::PlainScanner>, VRK::PlainScanner>(
            KindT::name, group, VRK::PlainScannerName);
        registrar.registerDataWriter<FilenameWriter>(KindT::name, group);
    }
};

} // namespace Prim

#endif
