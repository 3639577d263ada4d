#ifndef VRK_PLUGINS_PRIM_FILES_FILEKINDTYPE_H
#define VRK_PLUGINS_PRIM_FILES_FILEKINDTYPE_H

#include "base/data/TypeShim.h"

namespace Prim {

// The type of the names of files of one kind (see FileKindData).
template <class KindT>
class FileKindType : public VRK::TypeShim<typename KindT::Type, typename KindT::Data> {
protected:
    FileKindType()
        : VRK::TypeShim<typename KindT::Type, typename KindT::Data>(KindT::name,
                                                                    KindT::description())
    {
    }
};

} // namespace Prim

#endif
