#ifndef VRK_PLUGINS_PRIM_VALUES_TEXTS_NAMEREADER_H
#define VRK_PLUGINS_PRIM_VALUES_TEXTS_NAMEREADER_H

#include "plugins/prim/values/ValueReader.h"
#include "plugins/prim/values/texts/QuotedTextReader.h"

namespace Prim {

// Reads a name between double quotes; a name holds no double quote.
struct NameReading;
template <class ScannerT>
using NameReader = ValueReader<ScannerT, QuotedTextReader, NameReading>;

} // namespace Prim

#endif
