#ifndef VRK_PLUGINS_PRIM_NAMETYPE_H
#define VRK_PLUGINS_PRIM_NAMETYPE_H

#include "base/data/TypeShim.h"
#include "plugins/prim/NameData.h"
#include "plugins/prim/StringType.h"

namespace Prim {

class NameType : public VRK::TypeShim<NameType, NameData> {
public:
    NameType();
    ~NameType() override;
};

} // namespace Prim

#endif
