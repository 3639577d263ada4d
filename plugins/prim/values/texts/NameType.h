#ifndef VRK_PLUGINS_PRIM_VALUES_TEXTS_NAMETYPE_H
#define VRK_PLUGINS_PRIM_VALUES_TEXTS_NAMETYPE_H

#include "base/data/TypeShim.h"
#include "plugins/prim/values/texts/NameData.h"
#include "plugins/prim/values/texts/StringType.h"

namespace Prim {

class NameType : public VRK::TypeShim<NameType, NameData> {
public:
    NameType();
    ~NameType() override;
};

} // namespace Prim

#endif
