#ifndef VRK_PLUGINS_PRIM_FILES_FILEKINDREADER_H
#define VRK_PLUGINS_PRIM_FILES_FILEKINDREADER_H

#include "plugins/prim/files/FilenameReader.h"
#include "plugins/prim/values/PrimEditorUtils.h"

#include <string>

namespace Prim {

// Reads the name of a file of one kind (see FileKindData) between double quotes.
template <class KindT, class ScannerT>
class FileKindReader : public FilenameReader<ScannerT> {
public:
    explicit FileKindReader(VRK::DataEditor* dataEditor);
};

template <class KindT, class ScannerT>
FileKindReader<KindT, ScannerT>::FileKindReader(VRK::DataEditor* dataEditor)
    : FilenameReader<ScannerT>(dataEditor, KindT::description() + " name")
{
    // Only an editor of the kind may be read as a name of the kind.
    PrimEditorUtils::editorOf<typename KindT::Editor>(dataEditor);
}

} // namespace Prim

#endif
