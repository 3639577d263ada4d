#ifndef VRK_PLUGINS_PRIM_VALUES_KEYWORDS_BOOLDATA_H
#define VRK_PLUGINS_PRIM_VALUES_KEYWORDS_BOOLDATA_H

#include "base/data/PrimData.h"
#include "plugins/prim/values/keywords/BoolEditor.h"
#include "plugins/prim/values/keywords/BoolViewer.h"

namespace Prim {

// Bool values.
using BoolData = VRK::PrimData<bool, BoolViewer, BoolEditor>;

} // namespace Prim

#endif
