#ifndef VRK_PLUGINS_PRIM_VALUES_KEYWORDS_LOGTAGDATA_H
#define VRK_PLUGINS_PRIM_VALUES_KEYWORDS_LOGTAGDATA_H

#include "base/data/PrimData.h"
#include "plugins/prim/values/keywords/LogTagEditor.h"
#include "plugins/prim/values/keywords/LogTagViewer.h"

#include "base/log/LogTag.h"

namespace Prim {

// Log levels.
using LogTagData = VRK::PrimData<VRK::LogTag, LogTagViewer, LogTagEditor>;

} // namespace Prim

#endif
