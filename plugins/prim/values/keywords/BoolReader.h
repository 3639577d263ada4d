#ifndef VRK_PLUGINS_PRIM_VALUES_KEYWORDS_BOOLREADER_H
#define VRK_PLUGINS_PRIM_VALUES_KEYWORDS_BOOLREADER_H

#include "plugins/prim/values/RuleReader.h"

#include <string>

namespace Prim {

// Reads ".yes" or ".true" as true, ".no" or ".false" as false.
template <class ScannerT>
class BoolReader : public RuleReader<ScannerT> {
public:
    explicit BoolReader(VRK::DataEditor* dataEditor);
};

extern template class BoolReader<VRK::ScriptScanner>;
extern template class BoolReader<VRK::PlainScanner>;

} // namespace Prim

#endif
