#ifndef VRK_PLUGINS_PRIM_FILES_PATHREADER_H
#define VRK_PLUGINS_PRIM_FILES_PATHREADER_H

#include "plugins/prim/values/ValueReader.h"
#include "plugins/prim/values/texts/QuotedTextReader.h"

namespace Prim {

// Reads a file path between double quotes; backslashes are path separators,
// not escapes.
struct PathReading;
template <class ScannerT>
using PathReader = ValueReader<ScannerT, QuotedTextReader, PathReading>;

} // namespace Prim

#endif
