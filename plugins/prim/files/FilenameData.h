#ifndef VRK_PLUGINS_PRIM_FILES_FILENAMEDATA_H
#define VRK_PLUGINS_PRIM_FILES_FILENAMEDATA_H

#include "base/data/BaseData.h"
#include "plugins/prim/files/CompoundFilename.h"

namespace Prim {

// What every data class of a filename type offers, whatever its editor and viewer:
// folders here, kinds of files in other plugins.
class FilenameData : public virtual VRK::BaseData {
public:
    ~FilenameData() override;

    virtual const CompoundFilename& getCompoundFilename() const = 0;
};

} // namespace Prim

#endif
