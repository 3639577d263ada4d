#ifndef VRK_PLUGINS_PRIM_VALUES_TEXTS_STRINGTYPE_H
#define VRK_PLUGINS_PRIM_VALUES_TEXTS_STRINGTYPE_H

#include "base/data/TypeShim.h"
#include "plugins/prim/values/texts/StringData.h"

namespace Prim {

class StringType : public VRK::TypeShim<StringType, StringData> {
public:
    StringType();
    ~StringType() override;
};

} // namespace Prim

#endif
