#ifndef PRIM_PERCENTDATA_H
#define PRIM_PERCENTDATA_H

#include "base/PrimData.h"
#include "plugins/prim/PercentEditor.h"
#include "plugins/prim/PercentViewer.h"

namespace Prim {

// Percentual values, as the fraction 0..1; the range is the reader's and editor's to enforce.
using PercentData = VRK::PrimData<double, PercentViewer, PercentEditor>;

} // namespace Prim

#endif
