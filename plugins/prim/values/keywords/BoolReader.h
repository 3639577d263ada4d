#ifndef VRK_PLUGINS_PRIM_VALUES_KEYWORDS_BOOLREADER_H
#define VRK_PLUGINS_PRIM_VALUES_KEYWORDS_BOOLREADER_H

#include "plugins/prim/values/RuleReader.h"
#include "plugins/prim/values/ValueReader.h"

namespace Prim {

// Reads ".yes" or ".true" as true, ".no" or ".false" as false.
struct BoolReading;
template <class ScannerT>
using BoolReader = ValueReader<ScannerT, RuleReader, BoolReading>;

} // namespace Prim

#endif
