#ifndef VRK_PLUGINS_PRIM_VALUES_NUMBERS_NONNEGATIVEINTREADER_H
#define VRK_PLUGINS_PRIM_VALUES_NUMBERS_NONNEGATIVEINTREADER_H

#include "plugins/prim/values/ValueReader.h"
#include "plugins/prim/values/numbers/NumberReader.h"

namespace Prim {

// Reads a decimal integer; the editor refuses negative ones.
struct NonNegativeIntReading;
template <class ScannerT>
using NonNegativeIntReader = ValueReader<ScannerT, IntNumberReader, NonNegativeIntReading>;

} // namespace Prim

#endif
