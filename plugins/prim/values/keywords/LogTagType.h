#ifndef VRK_PLUGINS_PRIM_VALUES_KEYWORDS_LOGTAGTYPE_H
#define VRK_PLUGINS_PRIM_VALUES_KEYWORDS_LOGTAGTYPE_H

#include "base/data/TypeShim.h"
#include "plugins/prim/values/keywords/LogTagData.h"

namespace Prim {

class LogTagType : public VRK::TypeShim<LogTagType, LogTagData> {
public:
    LogTagType();
    ~LogTagType() override;
};

} // namespace Prim

#endif
