#ifndef VRK_PLUGINS_PRIM_VALUES_KEYWORDS_LOGTAGREADER_H
#define VRK_PLUGINS_PRIM_VALUES_KEYWORDS_LOGTAGREADER_H

#include "plugins/prim/values/RuleReader.h"
#include "plugins/prim/values/ValueReader.h"

namespace Prim {

// Reads a log level keyword. The keywords are tried in a fixed order and
// the first one the text begins with wins, so ".info2" reads as ".info" and leaves
// "2" unread, and ".debug2" as ".debug".
struct LogTagReading;
template <class ScannerT>
using LogTagReader = ValueReader<ScannerT, RuleReader, LogTagReading>;

} // namespace Prim

#endif
