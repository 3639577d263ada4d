#ifndef VRK_PLUGINS_PRIM_VALUES_NUMBERS_INTREADER_H
#define VRK_PLUGINS_PRIM_VALUES_NUMBERS_INTREADER_H

#include "plugins/prim/values/ValueReader.h"
#include "plugins/prim/values/numbers/NumberReader.h"

namespace Prim {

// Reads a decimal integer that fits in 32 signed bits.
struct IntReading;
template <class ScannerT>
using IntReader = ValueReader<ScannerT, IntNumberReader, IntReading>;

} // namespace Prim

#endif
