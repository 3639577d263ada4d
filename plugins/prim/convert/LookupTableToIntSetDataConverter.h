#ifndef VRK_PLUGINS_PRIM_CONVERT_LOOKUPTABLETOINTSETDATACONVERTER_H
#define VRK_PLUGINS_PRIM_CONVERT_LOOKUPTABLETOINTSETDATACONVERTER_H

#include "base/data/DataConverter.h"

namespace Prim {

// The keys of a table, rounded half up, as a set: its values are left out.
class LookupTableToIntSetDataConverter : public VRK::DataConverter {
public:
    VRK::BaseData* convert(const VRK::BaseData& source) const override;
};

} // namespace Prim

#endif
