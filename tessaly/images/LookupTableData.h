#ifndef VRK_TESSALY_IMAGES_LOOKUPTABLEDATA_H
#define VRK_TESSALY_IMAGES_LOOKUPTABLEDATA_H

#include "base/data/Data.h"
#include "base/data/NullType.h"
#include "tessaly/images/LookupTable.h"

#include <memory>

namespace Tessaly {

// A lookup table flowing between ports. The table is shared, never changed, so that
// copies of the data cost nothing. Produced by functors only: no editor, no viewer.
class LookupTableData
    : public VRK::Data<std::shared_ptr<const LookupTable>, VRK::NullType, VRK::NullType> {
public:
    LookupTableData() = default;
    explicit LookupTableData(const std::shared_ptr<const LookupTable>& table);
    LookupTableData(const LookupTableData&) = default;
    ~LookupTableData() override;
};

} // namespace Tessaly

#endif
