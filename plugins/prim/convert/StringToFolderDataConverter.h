#ifndef VRK_PLUGINS_PRIM_CONVERT_STRINGTOFOLDERDATACONVERTER_H
#define VRK_PLUGINS_PRIM_CONVERT_STRINGTOFOLDERDATACONVERTER_H

#include "base/data/DataConverter.h"

namespace Prim {

// Names a folder by a string that another functor built. A relative name stays
// relative, to be resolved against the work directory of the functor that receives it.
class StringToFolderDataConverter : public VRK::DataConverter {
public:
    VRK::BaseData* convert(const VRK::BaseData& source) const override;
};

} // namespace Prim

#endif
