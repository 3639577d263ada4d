#ifndef VRK_PLUGINS_PRIM_VALUES_KEYWORDS_BOOLTYPE_H
#define VRK_PLUGINS_PRIM_VALUES_KEYWORDS_BOOLTYPE_H

#include "base/data/TypeShim.h"
#include "plugins/prim/values/keywords/BoolData.h"

namespace Prim {

class BoolType : public VRK::TypeShim<BoolType, BoolData> {
public:
    BoolType();
    ~BoolType() override;
};

} // namespace Prim

#endif
