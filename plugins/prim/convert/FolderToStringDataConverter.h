#ifndef VRK_PLUGINS_PRIM_CONVERT_FOLDERTOSTRINGDATACONVERTER_H
#define VRK_PLUGINS_PRIM_CONVERT_FOLDERTOSTRINGDATACONVERTER_H

#include "base/data/DataConverter.h"

namespace Prim {

// A folder as the text of its complete path.
class FolderToStringDataConverter : public VRK::DataConverter {
public:
    VRK::BaseData* convert(const VRK::BaseData& source) const override;
};

} // namespace Prim

#endif
