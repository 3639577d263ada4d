#ifndef VRK_PLUGINS_PRIM_VALUES_NUMBERS_DOUBLEREADER_H
#define VRK_PLUGINS_PRIM_VALUES_NUMBERS_DOUBLEREADER_H

#include "plugins/prim/values/ValueReader.h"
#include "plugins/prim/values/numbers/NumberReader.h"

namespace Prim {

// Reads a real number in the usual decimal notation, with an optional exponent.
struct DoubleReading;
template <class ScannerT>
using DoubleReader = ValueReader<ScannerT, RealNumberReader, DoubleReading>;

} // namespace Prim

#endif
