#ifndef VRK_PLUGINS_PRIM_VALUES_NUMBERS_INTSETDATA_H
#define VRK_PLUGINS_PRIM_VALUES_NUMBERS_INTSETDATA_H

#include "base/data/PrimData.h"
#include "plugins/prim/values/numbers/IntSetEditor.h"
#include "plugins/prim/values/numbers/IntSetViewer.h"

#include <set>

namespace Prim {

// Ordered sets of integers.
using IntSetData = VRK::PrimData<std::set<int>, IntSetViewer, IntSetEditor>;

} // namespace Prim

#endif
