#ifndef VRK_PLUGINS_PRIM_VALUES_DATACAST_H
#define VRK_PLUGINS_PRIM_VALUES_DATACAST_H

#include "base/data/DataCast.h"

#include <cassert>

namespace Prim {

// Editors and viewers only ever meet data of their own type; anything else is a
// programming error of whoever handed it over.
class DataCast {
public:
    template <class DataT>
    static const DataT& as(const VRK::BaseData& data)
    {
        const DataT* typed = VRK::DataCast::find<DataT>(data);
        assert(typed != 0 && "typed != 0");
        return *typed;
    }
};

} // namespace Prim

#endif
