#ifndef VRK_PLUGINS_PRIM_VALUES_TEXTS_STRINGREADER_H
#define VRK_PLUGINS_PRIM_VALUES_TEXTS_STRINGREADER_H

#include "plugins/prim/values/ValueReader.h"
#include "plugins/prim/values/texts/QuotedTextReader.h"

namespace Prim {

// Reads a string between double quotes, in which a backslash protects the
// character after it. Only backslash-quote is turned back into a quote; every other
// backslash stays in the string as it was written.
struct StringReading;
template <class ScannerT>
using StringReader = ValueReader<ScannerT, QuotedTextReader, StringReading>;

} // namespace Prim

#endif
