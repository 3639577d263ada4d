#ifndef VRK_PLUGINS_PRIM_VALUES_NUMBERS_INTSETREADER_H
#define VRK_PLUGINS_PRIM_VALUES_NUMBERS_INTSETREADER_H

#include "plugins/prim/values/RuleReader.h"
#include "plugins/prim/values/ValueReader.h"

namespace Prim {

// Reads a non-empty set of integers between brackets, as "[ 1, 5, 7 ]";
// the commas between elements are optional. Each element goes to the editor as soon as
// it is read, so elements read before an error stay in the editor.
struct IntSetReading;
template <class ScannerT>
using IntSetReader = ValueReader<ScannerT, RuleReader, IntSetReading>;

} // namespace Prim

#endif
