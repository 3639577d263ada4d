#ifndef VRK_PLUGINS_PRIM_FILES_FILEKINDDATA_H
#define VRK_PLUGINS_PRIM_FILES_FILEKINDDATA_H

#include "base/data/Data.h"
#include "plugins/prim/files/CompoundFilename.h"
#include "plugins/prim/files/FilenameData.h"

namespace Prim {

// The name of a file of one kind, held as a compound filename. A kind (KindT, see FileKind)
// is a plugin's file type: it names the kind's Data, Editor, Viewer and Type classes, the
// type's name, and the `word` by which messages name such a file ("text file").
template <class KindT>
class FileKindData
    : public VRK::Data<CompoundFilename, typename KindT::Viewer, typename KindT::Editor>,
      public FilenameData {
public:
    FileKindData() = default;
    explicit FileKindData(const CompoundFilename& filename)
        : VRK::Data<CompoundFilename, typename KindT::Viewer, typename KindT::Editor>(filename)
    {
    }

    const CompoundFilename& getCompoundFilename() const override { return this->getValue(); }

    // How messages name a file of this kind.
    static constexpr const char* kindWord = KindT::word;
};

} // namespace Prim

#endif
