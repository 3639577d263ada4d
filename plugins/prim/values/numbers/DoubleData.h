#ifndef VRK_PLUGINS_PRIM_VALUES_NUMBERS_DOUBLEDATA_H
#define VRK_PLUGINS_PRIM_VALUES_NUMBERS_DOUBLEDATA_H

#include "base/data/PrimData.h"
#include "plugins/prim/values/numbers/DoubleEditor.h"
#include "plugins/prim/values/numbers/DoubleViewer.h"

namespace Prim {

// Real values; integers carry one too, so that they can be read as reals.
using DoubleData = VRK::PrimData<double, DoubleViewer, DoubleEditor>;

} // namespace Prim

#endif
