#ifndef VRK_PLUGINS_PRIM_VALUES_NUMBERS_POSITIVEINTREADER_H
#define VRK_PLUGINS_PRIM_VALUES_NUMBERS_POSITIVEINTREADER_H

#include "plugins/prim/values/ValueReader.h"
#include "plugins/prim/values/numbers/NumberReader.h"

namespace Prim {

// Reads a decimal integer; the editor refuses zero and negative ones.
struct PositiveIntReading;
template <class ScannerT>
using PositiveIntReader = ValueReader<ScannerT, IntNumberReader, PositiveIntReading>;

} // namespace Prim

#endif
