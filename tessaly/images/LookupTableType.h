#ifndef VRK_TESSALY_IMAGES_LOOKUPTABLETYPE_H
#define VRK_TESSALY_IMAGES_LOOKUPTABLETYPE_H

#include "base/data/TypeShim.h"
#include "tessaly/images/LookupTableData.h"

namespace Tessaly {

// The type "LookupTable", whose name keys the converters from tables.
class LookupTableType : public VRK::TypeShim<LookupTableType, LookupTableData> {
public:
    LookupTableType();
    ~LookupTableType() override;
};

} // namespace Tessaly

#endif
